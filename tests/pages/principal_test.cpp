// The main page: load failures, checks before writing, masks and profiles, help.
#include "page_bench.h"

#include "pages/letters.h"
#include "pages/store.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

using engine::Value;

class Principal : public testing::Test {
protected:
    PageBench bench{PageKind::ppPrincipal};
};

TEST_F(Principal, LoadFailureNamesThePositionInTheReadingOrder)
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
            "exclamation||Rotina: PropertyPage_SelectionChanged\r\nLinha: " + std::to_string(row.line) +
            "\r\nErro: 438\r\nObject doesn't support this property or method\n";
        EXPECT_EQ(page.takeBoxes(), box);
        EXPECT_FALSE(page.page->changed());
        page.edit();
        EXPECT_FALSE(page.page->apply()); // blanks are not written over what was never read
        EXPECT_EQ(page.takeBoxes(), box);
        EXPECT_TRUE(page.object.written.empty());
        EXPECT_TRUE(page.page->changed());
    }
    bench.object.properties[u"tipoLetra"] = 9; // no such item
    bench.open();
    EXPECT_EQ(
        bench.takeBoxes(),
        "exclamation||Rotina: PropertyPage_SelectionChanged\r\nLinha: 21\r\nErro: 380\r\nInvalid property value\n");
}

TEST_F(Principal, ASymbolThatIsOnlyASemicolonIsClearedForNumbers)
{
    for (const int type : {0, 1, 2, 3}) {
        bench.open();
        bench.choose(u"cboTextType", type);
        bench.put(u"cboFormatoData", u"dd/mm/yyyy");
        bench.put(u"txtSimboloMonetario", u";");
        EXPECT_TRUE(bench.page->apply());
        EXPECT_EQ(bench.takeBoxes(), type == 1 ? "information||Simbolo Agregado não pode ser ;\n" : "");
        EXPECT_EQ(bench.object.properties[u"SimboloMonetario"], Value(std::u16string(type == 1 ? u"" : u";")));
    }
}

TEST_F(Principal, ARefusedDateFormatWritesNothingAndResetsItsBox)
{
    struct Row {
        std::u16string format;
        std::string boxes;
    };
    const std::string character = "information|Vela|Caractere do formato de data inválido\n";
    const std::string refused = "information||Formato da Data inválido\n";
    for (const Row& row : {Row{u"dd/xx/yyyy", character + refused}, Row{u"//", refused}, Row{u"", refused}}) {
        bench.open();
        bench.choose(u"cboTextType", 2);
        bench.put(u"cboFormatoData", row.format);
        bench.object.written.clear();
        EXPECT_FALSE(bench.page->apply());
        EXPECT_EQ(bench.takeBoxes(), row.boxes);
        EXPECT_TRUE(bench.object.written.empty());
        EXPECT_TRUE(bench.page->changed());
        EXPECT_EQ(bench.text(u"cboFormatoData"), u"dd/MM/yy");
        EXPECT_EQ(bench.form().focused(), bench.id(u"cboFormatoData"));
        EXPECT_EQ(bench.form().items(bench.id(u"tabPrincipal")).chosen(), 1);
    }
    EXPECT_TRUE(bench.page->apply());
    EXPECT_FALSE(bench.page->changed());
}

TEST_F(Principal, TheMaskIsPreparedForMaskedTextOnly)
{
    for (const int type : {0, 3}) {
        bench.open();
        bench.choose(u"cboTextType", type);
        bench.put(u"txtMascara", u"@@@-####");
        bench.put(u"txtPromptChar", u"*");
        EXPECT_TRUE(bench.page->apply());
        EXPECT_EQ(bench.object.properties[u"Mask"], Value(std::u16string(type == 3 ? u"***-****" : u"@@@-####")));
    }
}

TEST_F(Principal, LettersFollowFreeTyping)
{
    platform::ItemList& letters = bench.form().items(bench.id(u"lstLetrasPermitidas"));
    bench.object.properties[u"TextoLivre"] = true;
    bench.object.properties[u"CaractLiberados"] = std::u16string(u"abc");
    bench.open();
    EXPECT_FALSE(bench.enabled(u"lstLetrasPermitidas"));
    EXPECT_EQ(selectedLetters(letters), u"");

    bench.object.properties[u"TextoLivre"] = false;
    bench.object.properties[u"CaractLiberados"] = std::u16string(u"c€aÖA");
    bench.open();
    EXPECT_TRUE(bench.enabled(u"lstLetrasPermitidas"));
    EXPECT_EQ(selectedLetters(letters), u"Aac");

    bench.check(u"chkTextoLivre", true);
    EXPECT_FALSE(bench.enabled(u"lstLetrasPermitidas"));
    EXPECT_EQ(selectedLetters(letters), u"Aac");
    EXPECT_TRUE(bench.page->apply());
    EXPECT_EQ(bench.object.properties[u"CaractLiberados"], Value(std::u16string()));
    bench.check(u"chkTextoLivre", false);
    EXPECT_TRUE(bench.page->apply());
    EXPECT_EQ(bench.object.properties[u"CaractLiberados"], Value(std::u16string(u"Aac")));
}

TEST_F(Principal, TheListOfLetters)
{
    const platform::ItemList& letters = bench.form().items(bench.id(u"lstLetrasPermitidas"));
    ASSERT_EQ(letters.count(), 133);
    std::u16string all;
    for (int i = 0; i < letters.count(); ++i)
        all += letters.at(i);
    EXPECT_EQ(all.substr(0, 3), u" !\"");
    EXPECT_EQ(all.substr(95), u"ÀÁÂÃÄÅÇÈÉÊÌÍÑÒÓÔÕ×Ùàáâãçèéêìíñòóôõ÷ùúû");
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

TEST_F(Principal, AFailingStoreLeavesTheListsEmptyAndReachesTheHostOtherwise)
{
    bench.failStore(70);
    bench.remake();
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
