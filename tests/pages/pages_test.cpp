// What marks a page changed, and swatches by key.
#include "page_bench.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

using engine::Colour;

TEST(ChangedFlag, IsSetByEditsOnly)
{
    struct Row {
        PageKind page;
        std::vector<std::u16string> marking, others;
    };
    const Row rows[] = {
        {PageKind::ppPrincipal,
         {u"cboTextType", u"txtSimboloMonetario", u"PicCorNegativa", u"chkInserirZeros", u"cboDataRetorno04",
          u"chkTextoLivre"},
         {u"cmdHelpPromptChar"}},
        {PageKind::ppGeral,
         {u"chkSendTab", u"txtDelimitador04", u"PicCorFundoGot"},
         {u"optLost", u"cmdHelpDelimitador"}},
        {PageKind::ppErros, {u"chkExibirAlertaPadrao", u"chkErrorFocus", u"PicCor"}, {u"CmdHelpErroAlert"}},
        {PageKind::ppFonte, {u"CboFontName", u"txtSize", u"Cortado"}, {u"cmdTeste"}},
    };
    const auto expectMark = [](PageKind page, const std::u16string& control, bool marks) {
        SCOPED_TRACE(utf8(control));
        PageBench bench(page);
        bench.open();
        ASSERT_FALSE(bench.page->changed());
        bench.colour = Colour{0x00123456};
        bench.act(control);
        EXPECT_EQ(bench.page->changed(), marks);
        EXPECT_EQ(bench.marked, marks);
        bench.open();
        EXPECT_FALSE(bench.page->changed());
        EXPECT_FALSE(bench.marked);
    };
    for (const Row& row : rows) {
        for (const std::u16string& control : row.marking)
            expectMark(row.page, control, true);
        for (const std::u16string& control : row.others)
            expectMark(row.page, control, false);
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

TEST(Erros, AMessageThatIsNotUsedIsGrey)
{
    PageBench bench(PageKind::ppErros);
    bench.object.properties[u"ErrorAlert"] = true;
    bench.open();
    EXPECT_EQ(bench.back(u"txtMsgCustom"), Colour{0x00DFDFDF});
    bench.click(u"chkPersonalizarMsgErro");
    EXPECT_EQ(bench.back(u"txtMsgCustom"), Colour{0x00FFFFFF});
}

} // namespace
} // namespace vela::pages
