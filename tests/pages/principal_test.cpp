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
        EXPECT_EQ(page.takeBoxes(),
                  "exclamation||Rotina: PropertyPage_SelectionChanged\r\nLinha: " + std::to_string(row.line) +
                      "\r\nErro: 438\r\nObject doesn't support this property or method\n");
        EXPECT_FALSE(page.page->changed());
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
        EXPECT_EQ(bench.text(u"txtMascara"), u"@@@-####");
    }
}

TEST_F(Principal, DecimalPlacesAreTheLeadingNumberOfTheirBox)
{
    struct Row {
        std::u16string text;
        double written;
    };
    bench.open();
    for (const Row& row : {Row{u"2", 2}, Row{u"3 casas", 3}, Row{u"", 0}, Row{u"x", 0}, Row{u"1.5", 1.5}}) {
        bench.put(u"txtQtdCasasDec", row.text);
        EXPECT_TRUE(bench.page->apply());
        EXPECT_EQ(bench.object.properties[u"QtdCasasDec"], Value(row.written)) << utf8(row.text);
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

TEST_F(Principal, TheMaskBoxFollowsTheListOfMasks)
{
    bench.settings().save(storeApplication, u"Mascaras", u"Key_1", u"__/__");
    bench.object.properties[u"Mask"] = std::u16string(u"own");
    bench.open();
    EXPECT_EQ(bench.text(u"txtMascara"), u"own"); // filling the list leaves it alone
    bench.keys(u"cboMascarasProntas", u"A_");
    EXPECT_EQ(bench.text(u"txtMascara"), u"A_");
    EXPECT_TRUE(bench.page->changed());
    bench.choose(u"cboMascarasProntas", 0);
    EXPECT_EQ(bench.text(u"txtMascara"), u"__/__");
    bench.put(u"txtMascara", u"other");
    bench.focus(u"cboMascarasProntas");
    EXPECT_EQ(bench.text(u"txtMascara"), u"other");
    bench.focus(u"txtMascara");
    EXPECT_EQ(bench.text(u"txtMascara"), u"__/__");
}

TEST_F(Principal, SavingAMask)
{
    bench.open();
    bench.click(u"CmdADDNovoTipoMascara");
    EXPECT_EQ(bench.takeBoxes(), "information||Informe o texto\n");
    bench.put(u"cboMascarasProntas", u"___");
    bench.answer(platform::BoxAnswer::no);
    bench.click(u"CmdADDNovoTipoMascara");
    EXPECT_EQ(bench.takeBoxes(), "question||Confirma Inclusão da Mascara <  ___  >\n");
    EXPECT_TRUE(bench.settings().all(storeApplication, u"Mascaras").empty());

    bench.click(u"CmdADDNovoTipoMascara");
    bench.useLocale("en-US");
    bench.click(u"CmdADDNovoTipoMascara");
    bench.open(); // lists them now
    bench.put(u"cboMascarasProntas", u"##");
    bench.click(u"CmdADDNovoTipoMascara");
    const std::vector<platform::SettingsStore::Entry> saved = bench.settings().all(storeApplication, u"Mascaras");
    const std::vector<platform::SettingsStore::Entry> expected{
        {u"Key_114:05:33", u"___"}, {u"Key_12:05:33 PM", u"___"}, {u"Key_32:05:33 PM", u"##"}};
    EXPECT_EQ(saved, expected);
}

TEST_F(Principal, ProfilesAreSavedLoadedAndDeleted)
{
    platform::ItemList& letters = bench.form().items(bench.id(u"lstLetrasPermitidas"));
    platform::ItemList& names = bench.form().items(bench.id(u"cboProfile"));
    bench.object.properties[u"TextoLivre"] = false;
    bench.open();
    bench.click(u"CmdSalvarProfile");
    EXPECT_EQ(bench.takeBoxes(), "information|Acesso Negado !|Selecione pelo menos um caractere da lista\n");
    bench.click(u"CmdCarregaProfile");
    EXPECT_EQ(bench.takeBoxes(), "information|Operação Cancelada !|Escolha um item para carregar\n");
    bench.click(u"CmdExcluirProfile");
    EXPECT_EQ(bench.takeBoxes(), "information|Operação Cancelada !|Escolha um item para excluir\n");

    selectLetters(letters, u"aA1");
    bench.click(u"CmdSalvarProfile"); // no name given
    EXPECT_EQ(bench.takeBoxes(), "input|Vela - By Aldren|Digite o Nome do Profile\n");
    EXPECT_EQ(names.count(), 0);
    bench.answerText(u" Dois ");
    bench.click(u"CmdSalvarProfile");
    EXPECT_EQ(bench.settings().get(storeApplication, u"Profiles", u" Dois ", u""), u"1Aa");
    ASSERT_EQ(names.count(), 1);
    EXPECT_EQ(names.chosen(), -1);

    selectLetters(letters, u"zé€");
    bench.page->apply();
    names.choose(0);
    bench.click(u"CmdCarregaProfile");
    EXPECT_EQ(selectedLetters(letters), u"1Aa");
    EXPECT_FALSE(bench.page->changed());

    bench.takeBoxes();
    bench.click(u"CmdExcluirProfile");
    EXPECT_EQ(names.count(), 0);
    bench.click(u"CmdCarregaProfile");
    EXPECT_EQ(bench.takeBoxes(), "information|Operação Cancelada !|Escolha um item para carregar\n");
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

TEST_F(Principal, TheSampleOfAReturnFormat)
{
    bench.open();
    bench.put(u"cboDataRetorno", u"dd.MM.yyyy hh:nn");
    bench.takeBoxes();
    bench.click(u"cmdfRetorno");
    EXPECT_EQ(bench.takeBoxes(),
              "information||Formato de Retorno é a forma que será os dados serão formatados e exibidos "
              "através da propriedade .Value \r\nTeste do formato de Retorno= 29.02.2024 14:05\n");
    bench.click(u"CmdRegrasMascara");
    EXPECT_EQ(bench.takeBoxes(), "information||# - Só poderá ser digitado Números na área delimitada\r\n"
                                 "@ - Só poderá ser digitado Letras na área delimitada\r\n"
                                 "? - Qualquer caractere de < Aa a Zz > e < 0 a 9 > será permitido\r\n"
                                 "Exemplo: \r\nPlaca de Carro @@@-####\n");
}

TEST_F(Principal, TheSymbolBoxRefusesTheDigitsOneToEight)
{
    bench.open();
    bench.keys(u"txtSimboloMonetario", u"R$0123456789;%");
    EXPECT_EQ(bench.text(u"txtSimboloMonetario"), u"R$09;%");
}

} // namespace
} // namespace vela::pages
