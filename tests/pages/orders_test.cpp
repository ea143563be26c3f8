// Which properties a page reads and writes, and in which order; what a failure in the middle leaves behind.
#include "page_bench.h"

#include "apps/console/value_text.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

struct Order {
    PageKind page;
    std::string read;
    std::string written;
};

const std::string fonte = "FontName FontSize FontBold FontItalic FontUnderline FontStrikethru";
const std::string calendario = "Calendar_BackColor Calendar_ComboBackColor Calendar_DayActive Calendar_DayInactive "
                               "Calendar_ColorWeekDay Calendar_FormBackcolor Calendar_Selected";

const Order orders[] = {
    {PageKind::ppPrincipal,
     "TextType SimboloMonetario SimbolDecExib SimbolDecRet SimbolAgrupMilhar QtdCasasDec CorValorNeg CorValorPos "
     "AceitaNegativos InserirZeros DateFormat FormatoExibData FormatoRetornoData FormatoRetornoData02 "
     "FormatoRetornoData03 FormatoRetornoData04 MaskSomenteNumeros Mask MaskRules PromptChar tipoLetra TextoLivre "
     "ShowButtonCalendario ShowButtonCalculadora CaractLiberados",
     "SimboloMonetario SimbolDecExib SimbolDecRet SimbolAgrupMilhar QtdCasasDec InserirZeros CorValorNeg CorValorPos "
     "AceitaNegativos MaskSomenteNumeros Mask MaskRules FormatoExibData FormatoRetornoData FormatoRetornoData02 "
     "FormatoRetornoData03 FormatoRetornoData04 DateFormat PromptChar tipoLetra TextoLivre ShowButtonCalendario "
     "ShowButtonCalculadora TextType CaractLiberados"},
    {PageKind::ppGeral,
     "UpTAB EnterAsTab AutoSelect BackColorGotFocus BackColorLostFocus IF_IsEmpty Delimitador Delimitador02 "
     "Delimitador03 Delimitador04",
     "EnterAsTab AutoSelect BackColorGotFocus BackColorLostFocus IF_IsEmpty Delimitador Delimitador02 Delimitador03 "
     "Delimitador04 UpTAB"},
    {PageKind::ppErros, "Error_ForeColor ErrorAlert ErrorFocus ErrorMsgCustom ErrorTextClear ErrorTextMessage",
     "ErrorAlert ErrorFocus ErrorMsgCustom ErrorTextClear ErrorTextMessage Error_ForeColor"},
    {PageKind::ppFonte, fonte, fonte},
    {PageKind::ppCalendario, calendario, calendario},
};

// Of `names` those that `promised` holds: properties that were added later may stand anywhere between them.
std::string among(const std::string& promised, const std::vector<std::u16string>& names)
{
    std::vector<std::u16string> found;
    for (const std::u16string& name : names)
        if ((" " + promised + " ").find(" " + utf8(name) + " ") != std::string::npos)
            found.push_back(name);
    return joined(found);
}

TEST(Orders, ReadAndWrittenAsTheyAlwaysWereAndOnlyOnTheFirstObject)
{
    for (const Order& order : orders) {
        PageBench bench(order.page);
        RecordingObject second;
        bench.open({&bench.object, &second});
        EXPECT_EQ(among(order.read, bench.object.read), order.read);
        EXPECT_EQ(joined(bench.object.written), "");
        EXPECT_TRUE(bench.page->apply());
        EXPECT_EQ(among(order.written, bench.object.written), order.written);
        EXPECT_TRUE(second.read.empty() && second.written.empty());
    }
}

// What is loaded and applied untouched is what the object had: each property goes back to its own control.
TEST(Orders, UntouchedApplyWritesBackEveryValue)
{
    for (const Order& order : orders) {
        PageBench bench(order.page);
        bench.object.makeAllDifferent();
        const auto before = bench.object.properties;
        bench.open();
        EXPECT_TRUE(bench.page->apply());
        for (const std::u16string& name : bench.object.written)
            EXPECT_EQ(console::printed(bench.object.properties.at(name)), console::printed(before.at(name)))
                << utf8(name);
    }
}

TEST(Orders, AFailedWriteReachesTheHostAndKeepsTheEarlierOnesAndTheFlag)
{
    for (const Order& order : orders) {
        PageBench bench(order.page);
        bench.open();
        bench.edit();
        ASSERT_TRUE(bench.page->changed());
        bench.page->apply();
        const std::size_t writes = bench.object.written.size();
        for (std::size_t failing = 0; failing < writes; ++failing) {
            bench.edit();
            ASSERT_TRUE(bench.page->changed());
            bench.object.written.clear();
            bench.object.failWriteAt = failing;
            EXPECT_EQ(errorOf([&] { bench.page->apply(); }), 380);
            EXPECT_EQ(bench.object.written.size(), failing);
            EXPECT_TRUE(bench.page->changed());
            bench.object.failWriteAt.reset();
            EXPECT_TRUE(bench.page->apply());
            EXPECT_FALSE(bench.page->changed());
        }
    }
}

TEST(Orders, AnObjectThatLacksAPropertyIsReportedAndThePageStaysUsable)
{
    for (const Order& order : orders) {
        if (order.page == PageKind::ppPrincipal)
            continue; // shows a box instead
        PageBench bench(order.page);
        const auto full = bench.object.properties;
        const std::u16string lacking = utf16(order.read.substr(order.read.rfind(' ') + 1));
        bench.object.properties.erase(lacking);
        EXPECT_EQ(errorOf([&] { bench.open(); }), 438);
        EXPECT_FALSE(bench.page->changed());
        bench.edit();
        bench.object.properties = full;
        EXPECT_EQ(errorOf([&] { bench.page->apply(); }), 438); // blanks are not written over what was never read
        EXPECT_TRUE(bench.object.written.empty());
        EXPECT_TRUE(bench.page->changed());
        bench.open();
        EXPECT_TRUE(bench.page->apply());
    }
}

TEST(Orders, WithoutAnObject)
{
    for (const Order& order : orders) {
        PageBench bench(order.page);
        if (order.page == PageKind::ppPrincipal) {
            bench.open(std::vector<PropertyObject*>{});
            EXPECT_EQ(
                bench.takeBoxes(),
                "msgbox exclamation \"\" \"Rotina: PropertyPage_SelectionChanged\\r\\nLinha: 1\\r\\nErro: 91\\r\\n"
                "Object variable or With block variable not set\" -> ok");
            EXPECT_FALSE(bench.page->apply());
        } else {
            EXPECT_EQ(errorOf([&] { bench.open(std::vector<PropertyObject*>{}); }), 91);
            EXPECT_EQ(errorOf([&] { bench.page->apply(); }), 91);
        }
        bench.open();
        EXPECT_TRUE(bench.page->apply());
        bench.page->release();
        EXPECT_EQ(errorOf([&] { bench.page->apply(); }), 91);
    }
}

} // namespace
} // namespace vela::pages
