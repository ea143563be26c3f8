// The general, errors, font and calendar pages, and what marks a page changed.
#include "page_bench.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

using engine::Colour;
using engine::Value;

struct Mark {
    PageKind page;
    std::u16string control;
    bool marks;
};

TEST(ChangedFlag, IsSetByEditsOnly)
{
    const Mark marks[] = {
        {PageKind::ppPrincipal, u"cboTextType", true},
        {PageKind::ppPrincipal, u"txtSimboloMonetario", true},
        {PageKind::ppPrincipal, u"PicCorNegativa", true},
        {PageKind::ppPrincipal, u"chkInserirZeros", true},
        {PageKind::ppPrincipal, u"cboDataRetorno04", true},
        {PageKind::ppPrincipal, u"chkTextoLivre", true},
        {PageKind::ppPrincipal, u"cmdHelpPromptChar", false},
        {PageKind::ppGeral, u"chkSendTab", true},
        {PageKind::ppGeral, u"txtDelimitador04", true},
        {PageKind::ppGeral, u"PicCorFundoGot", true},
        {PageKind::ppGeral, u"optLost", false},
        {PageKind::ppGeral, u"cmdHelpDelimitador", false},
        {PageKind::ppErros, u"chkExibirAlertaPadrao", true},
        {PageKind::ppErros, u"chkErrorFocus", true},
        {PageKind::ppErros, u"PicCor", true},
        {PageKind::ppErros, u"CmdHelpErroAlert", false},
        {PageKind::ppFonte, u"CboFontName", true},
        {PageKind::ppFonte, u"txtSize", true},
        {PageKind::ppFonte, u"Cortado", true},
        {PageKind::ppFonte, u"cmdTeste", false},
    };
    for (const Mark& mark : marks) {
        PageBench bench(mark.page);
        bench.open();
        ASSERT_FALSE(bench.page->changed());
        bench.colour = Colour{0x00123456};
        bench.act(mark.control);
        EXPECT_EQ(bench.page->changed(), mark.marks) << utf8(mark.control);
        EXPECT_EQ(bench.marked, mark.marks) << utf8(mark.control);
        bench.open();
        EXPECT_FALSE(bench.page->changed()) << utf8(mark.control);
        EXPECT_FALSE(bench.marked) << utf8(mark.control);
    }
}

TEST(Swatches, TakeTheChosenColourUnlessThePaletteWasCancelled)
{
    PageBench bench(PageKind::ppCalendario);
    bench.object.properties[u"Calendar_DayInactive"] = static_cast<std::int32_t>(0x80000012);
    bench.open();
    EXPECT_EQ(bench.back(u"PicCorCalendario", 3).value, 0x80000012U);
    bench.colour = std::nullopt;
    bench.doubleClick(u"PicCorCalendario", 3);
    EXPECT_EQ(bench.back(u"PicCorCalendario", 3).value, 0x80000012U);
    EXPECT_FALSE(bench.page->changed());
    bench.colour = Colour{0x0000C0FF};
    bench.doubleClick(u"PicCorCalendario", 3);
    EXPECT_TRUE(bench.page->changed());
    EXPECT_TRUE(bench.page->apply());
    EXPECT_EQ(bench.object.properties[u"Calendar_DayInactive"], Value(0x0000C0FF));
    EXPECT_EQ(bench.object.properties[u"Calendar_DayActive"], Value(0));
}

TEST(Geral, ShowsOneGroupAtATime)
{
    PageBench bench(PageKind::ppGeral);
    bench.open();
    EXPECT_TRUE(bench.checked(u"optGotfocus"));
    EXPECT_TRUE(bench.visible(u"chkAutoSelect"));
    EXPECT_FALSE(bench.visible(u"txtISEmpty"));
    bench.click(u"optLost");
    EXPECT_FALSE(bench.checked(u"optGotfocus"));
    EXPECT_FALSE(bench.visible(u"PicCorFundoGot"));
    EXPECT_TRUE(bench.visible(u"txtISEmpty"));
    bench.click(u"optGotfocus");
    EXPECT_FALSE(bench.visible(u"txtISEmpty"));
}

TEST(Geral, TheHelpShowsTodayTwice)
{
    PageBench bench(PageKind::ppGeral);
    bench.click(u"cmdHelpDelimitador");
    EXPECT_EQ(
        bench.takeBoxes(),
        "information||Neste campo vc informa qual texto ficará antes e depois da String quando for solicitado pela "
        "propriedade Vela1.Value\r\n\r\nExemplo:\r\nSe o texto na Vela1 estiver ( 29/02/2024 ) e o delimitador "
        "estiver como #, então o Vela1.Value retornará #29/02/2024#\n");
}

class Erros : public testing::Test {
protected:
    void load(bool alert, bool custom, bool clears, bool focus)
    {
        bench.object.properties[u"ErrorAlert"] = alert;
        bench.object.properties[u"ErrorMsgCustom"] = custom;
        bench.object.properties[u"ErrorTextClear"] = clears;
        bench.object.properties[u"ErrorFocus"] = focus;
        bench.object.properties[u"ErrorTextMessage"] = std::u16string(u"texto");
        bench.open();
    }
    // alert, custom (+), message (+), clear, focus (+); "+" behind what is enabled
    [[nodiscard]] std::string state()
    {
        const auto box = [&](std::u16string_view name) {
            return std::string(bench.checked(name) ? "1" : "0") + (bench.enabled(name) ? "+" : "-");
        };
        return box(u"chkExibirAlertaPadrao") + " " + box(u"chkPersonalizarMsgErro") + " '" +
               utf8(bench.text(u"txtMsgCustom")) + "'" + (bench.enabled(u"txtMsgCustom") ? "+" : "-") +
               (bench.enabled(u"LBLTextCustom") ? "+" : "-") +
               (bench.back(u"txtMsgCustom") == Colour{0x00FFFFFF} ? "white" : "grey") + " " + box(u"chkLimpaCampo") +
               " " + box(u"chkErrorFocus");
    }

    PageBench bench{PageKind::ppErros};
};

TEST_F(Erros, DependentControlsAfterLoading)
{
    struct Row {
        bool alert, custom, clears, focus;
        std::string state;
    };
    const Row rows[] = {
        {true, true, false, true, "1+ 1+ 'texto'++white 0+ 1+"},
        {true, false, false, false, "1+ 0+ ''--grey 0+ 0+"},
        {false, true, false, true, "0+ 0- ''--grey 0+ 1+"}, // the alert rule comes first
        {true, true, true, true, "1+ 1+ 'texto'++white 1+ 0-"},
    };
    for (const Row& row : rows) {
        load(row.alert, row.custom, row.clears, row.focus);
        EXPECT_EQ(state(), row.state);
        EXPECT_FALSE(bench.page->changed());
    }
}

TEST_F(Erros, DependentControlsFollowClicks)
{
    load(true, true, false, true);
    bench.click(u"chkExibirAlertaPadrao");
    EXPECT_EQ(state(), "0+ 0- 'texto'--grey 0+ 1+"); // a click keeps the text
    bench.click(u"chkExibirAlertaPadrao");
    EXPECT_EQ(state(), "1+ 0+ 'texto'--grey 0+ 1+");
    bench.click(u"chkPersonalizarMsgErro");
    EXPECT_EQ(state(), "1+ 1+ 'texto'++white 0+ 1+");
    bench.click(u"chkLimpaCampo");
    EXPECT_EQ(state(), "1+ 1+ 'texto'++white 1+ 0-");
    bench.click(u"chkLimpaCampo");
    EXPECT_EQ(state(), "1+ 1+ 'texto'++white 0+ 0+");
}

TEST_F(Erros, AnEnabledEmptyMessageIsRefused)
{
    load(true, true, false, false);
    bench.put(u"txtMsgCustom", u"");
    EXPECT_FALSE(bench.page->apply());
    EXPECT_EQ(bench.takeBoxes(), "information||Informe o texto da mensagem.\n");
    EXPECT_TRUE(bench.object.written.empty());
    EXPECT_TRUE(bench.page->changed());
    load(true, false, false, false);
    EXPECT_TRUE(bench.page->apply());
    EXPECT_EQ(bench.object.properties[u"ErrorTextMessage"], Value(std::u16string()));
}

TEST(Fonte, ListsTheFontsOpensTheListAndFiltersTheSize)
{
    PageBench bench(PageKind::ppFonte);
    bench.object.properties[u"FontName"] = std::u16string(u"Tahoma");
    bench.open();
    platform::ItemList& fonts = bench.form().items(bench.id(u"CboFontName"));
    ASSERT_EQ(fonts.count(), 5);
    EXPECT_EQ(fonts.at(1), u"Courier New");
    bench.takeBoxes();
    bench.focus(u"CboFontName");
    EXPECT_EQ(bench.takeBoxes(), "sendkeys {F4}\n");
    bench.choose(u"CboFontName", 3); // Tahoma, as it stands
    EXPECT_FALSE(bench.page->changed());
    bench.keys(u"txtSize", u"\b1a2,5");
    EXPECT_EQ(bench.text(u"txtSize"), u"125");
    EXPECT_TRUE(bench.page->apply());
    EXPECT_EQ(bench.object.properties[u"FontSize"], Value(125.0));
}

TEST(Fonte, ThePreviewIsDrawnWhenAskedFor)
{
    PageBench bench(PageKind::ppFonte);
    bench.open();
    bench.check(u"Italico", true);
    EXPECT_EQ(bench.text(u"picTeste"), u"");
    bench.click(u"cmdTeste");
    EXPECT_EQ(bench.text(u"picTeste"), u"Texto de Teste");
}

} // namespace
} // namespace vela::pages
