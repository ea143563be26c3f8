// The main page: load failures, a refused format, and a store that changes or fails.
#include "page_bench.h"

#include "pages/letters.h"
#include "pages/store.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

class Principal : public testing::Test {
protected:
    PageBench bench{PageKind::ppPrincipal};
};

TEST(PrincipalLoad, FailureNamesThePositionInTheReadingOrder)
{
    struct Row {
        std::u16string property;
        int line;
    };
    for (const Row& row :
         {Row{u"TextType", 1}, Row{u"QtdCasasDec", 6}, Row{u"Mask", 18}, Row{u"CaractLiberados", 25}}) {
        PageBench page(PageKind::ppPrincipal);
        page.object.properties.erase(row.property);
        page.open();
        const std::string box =
            "msgbox exclamation \"\" \"Rotina: PropertyPage_SelectionChanged\\r\\nLinha: " + std::to_string(row.line) +
            "\\r\\nErro: 438\\r\\nObject doesn't support this property or method\" -> ok";
        EXPECT_EQ(page.takeBoxes(), box);
        EXPECT_FALSE(page.page->changed());
        page.edit();
        EXPECT_FALSE(page.page->apply()); // blanks are not written over what was never read
        EXPECT_EQ(page.takeBoxes(), box);
        EXPECT_TRUE(page.object.written.empty());
        EXPECT_TRUE(page.page->changed());
    }
}

TEST_F(Principal, ARefusedDateFormatShowsItsBox)
{
    bench.open();
    bench.choose(u"cboTextType", 2);
    bench.put(u"cboFormatoData", u"dd/xx/yyyy");
    EXPECT_FALSE(bench.page->apply());
    EXPECT_TRUE(bench.object.written.empty());
    EXPECT_TRUE(bench.page->changed());
    EXPECT_EQ(bench.form().focused(), bench.id(u"cboFormatoData"));
    EXPECT_EQ(bench.form().items(bench.id(u"tabPrincipal")).chosen(), 1);
}

TEST_F(Principal, ProfilesOfTheStoreAreListedOnceAndTheFirstIsChosen)
{
    bench.settings().save(storeApplication, u"Profiles", u"b", u"B");
    bench.settings().save(storeApplication, u"Profiles", u"a", u"A");
    bench.remake();
    bench.open();
    bench.open();
    platform::ItemList& names = bench.form().items(bench.id(u"cboProfile"));
    ASSERT_EQ(names.count(), 2);
    EXPECT_EQ(bench.text(u"cboProfile"), u"b");
    bench.settings().remove(storeApplication, u"Profiles", u"b"); // by somebody else
    EXPECT_EQ(errorOf([&] { bench.click(u"CmdExcluirProfile"); }), 5);
    EXPECT_EQ(names.count(), 2);
    names.choose(1);
    bench.click(u"CmdExcluirProfile");
    EXPECT_EQ(names.count(), 1);
    EXPECT_EQ(names.chosen(), 0);
}

class FailingStore final : public platform::SettingsStore {
    using View = std::u16string_view;

public:
    void save(View, View, View, View) override { engine::raise(70); }
    [[nodiscard]] std::u16string get(View, View, View, View) const override { engine::raise(70); }
    [[nodiscard]] std::vector<Entry> all(View, View) const override { engine::raise(70); }
    void remove(View, View, View) override { engine::raise(70); }
};

TEST(PrincipalStore, ThatFailsLeavesTheListsEmptyAndReachesTheHostOtherwise)
{
    FailingStore store;
    PageBench bench(PageKind::ppPrincipal, &store);
    bench.open();
    EXPECT_EQ(bench.takeBoxes(), "");
    bench.put(u"cboMascarasProntas", u"_");
    EXPECT_EQ(errorOf([&] { bench.click(u"CmdADDNovoTipoMascara"); }), 70);
    bench.object.properties[u"TextoLivre"] = false;
    bench.open();
    selectLetters(bench.form().items(bench.id(u"lstLetrasPermitidas")), u"x");
    bench.answerText(u"X");
    EXPECT_EQ(errorOf([&] { bench.click(u"CmdSalvarProfile"); }), 70);
    EXPECT_EQ(bench.form().items(bench.id(u"cboProfile")).count(), 0);
    EXPECT_TRUE(bench.page->apply());
}

} // namespace
} // namespace vela::pages
