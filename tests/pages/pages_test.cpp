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

// A single click, and a palette that is opened and cancelled.
TEST(ChangedFlag, IsNotSetByASwatchWithoutANewColour)
{
    for (const PageKind kind : pageKinds()) {
        PageBench bench(kind);
        bench.open();
        const auto& rows = bench.page->layout().rows;
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i].kind == platform::WidgetKind::swatch) {
                bench.headlessForm().click({static_cast<int>(i)});
                bench.headlessForm().doubleClick({static_cast<int>(i)});
                EXPECT_FALSE(bench.page->changed()) << utf8(rows[i].name);
            }
    }
}

TEST(Swatches, SpaceAndEnterOpenThePalette)
{
    PageBench bench(PageKind::ppErros);
    bench.open();
    for (const int code : {32, 13}) {
        bench.colour = Colour{static_cast<std::uint32_t>(code)};
        bench.headlessForm().type(bench.id(u"PicCor"), headless::namedKey(code));
        EXPECT_EQ(bench.back(u"PicCor"), *bench.colour);
    }
    EXPECT_TRUE(bench.page->changed());
    bench.colour = Colour{0x00123456};
    bench.headlessForm().type(bench.id(u"chkErrorFocus"), headless::namedKey(13));
    EXPECT_NE(bench.back(u"PicCor"), *bench.colour);
}

TEST(Geral, ShowsOneGroupAtATime)
{
    PageBench bench(PageKind::ppGeral);
    for (const bool entered : {false, true}) {
        bench.click(entered ? u"optGotfocus" : u"optLost");
        EXPECT_EQ(bench.form().visible(bench.id(u"chkAutoSelect")), entered);
        EXPECT_EQ(bench.form().visible(bench.id(u"txtISEmpty")), !entered);
    }
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

TEST(Fonte, ChoosingTheFontThatStandsChangesNothing)
{
    PageBench bench(PageKind::ppFonte);
    bench.object.properties[u"FontName"] = std::u16string(u"Tahoma");
    bench.open();
    bench.choose(u"CboFontName", 3);
    EXPECT_FALSE(bench.page->changed());
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
