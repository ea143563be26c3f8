// What marks a page changed, and swatches by key.
#include "page_bench.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

using engine::Colour;

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
