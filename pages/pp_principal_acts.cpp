// What the buttons and the mask list of the main page do: help, the store of masks and profiles.
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/decimal_text.h"
#include "engine/text/pattern.h"
#include "pages/letters.h"
#include "pages/pp_principal.h"

#include <string>

namespace vela::pages {

namespace {

constexpr std::u16string_view returnFormatHelp =
    u"Formato de Retorno é a forma que será os dados serão formatados e exibidos através da propriedade .Value ";

struct HelpText {
    std::u16string_view button;
    std::u16string_view text;
};

constexpr HelpText helpTexts[] = {
    {u"CmdHelpColocarZeros",
     u"Ao perder o foco. O Controle zeros ( 0 ) até completar a quantidade de casas decimais configuradas.\r\n"
     u"Exemplo: Se estiver digitado (1,2) e a quantidade de decimais for de 02 digitos, então o controle colocará mais "
     u"um 0 no final, ficando a caixa com o valor de (1,20)"},
    {u"cmdHelpDecimalExibicao", u"Sinal que poderá ser digitado na caixa de texto"},
    {u"cmdHelpDecimalRetorno", u"Se estiver digitado na caixa ( 100,15 ) e o ( Decimal de Retorno = . )\r\n"
                               u"O Retorno de Vela1.Value será ( 100.15 )"},
    {u"CmdHelpFormatoMascara", u"O Texto ser exibido quando iniciar a caixa"},
    {u"cmdHelpSimboloDecimal",
     u"O Simbolo Monetário só será inserido na caixa quando o esta perder o foco\r\n"
     u"Macetes:\r\n"
     u"Para inserir o simbolo depois do valor digitado é só colocar ( ;% )\r\n"
     u"Se desejar colocar um simbolo antes e outro depois só é preencher a propriedade da seguinte forma ( R$ ;% )\r\n"
     u"Caso vc deixe somente o valor da propriedade sem valor ela irá ficar por padrão antes do valor digitado"},
    {u"CmdRegrasMascara", u"# - Só poderá ser digitado Números na área delimitada\r\n"
                          u"@ - Só poderá ser digitado Letras na área delimitada\r\n"
                          u"? - Qualquer caractere de < Aa a Zz > e < 0 a 9 > será permitido\r\n"
                          u"Exemplo: \r\n"
                          u"Placa de Carro @@@-####"},
    {u"cmdHelpPromptChar", u"O Prompt Char é o caractere que será substituido na mascara"},
    {u"cmdHelpSeparadorMilhar", u"Os separadores de milhar só serão visivel quando a caixa perder o foco"},
};

} // namespace

void ppPrincipal::bindHelp()
{
    for (const HelpText& help : helpTexts)
        page_.help(help.button, help.text);
}

void ppPrincipal::bindPresets()
{
    page_.onChange(u"cboMascarasProntas", [this] { copyPreset(); });
    page_.onClick(u"cboMascarasProntas", [this] { copyPreset(); });
    page_.onLostFocus(u"cboMascarasProntas", [this] { copyPreset(); });
    page_.onClick(u"CmdADDNovoTipoMascara", [this] { saveMask(); });
    page_.onClick(u"CmdSalvarProfile", [this] { saveProfile(); });
    page_.onClick(u"CmdCarregaProfile", [this] { loadProfile(); });
    page_.onClick(u"CmdExcluirProfile", [this] { deleteProfile(); });
}

void ppPrincipal::testReturnFormat() const
{
    try {
        const engine::Date now = page_.services().environment.clock.now();
        page_.inform(std::u16string(returnFormatHelp) + u"\r\nTeste do formato de Retorno= " +
                     engine::format(now, page_.text(u"cboDataRetorno"), page_.locale(), now));
    } catch (const engine::Error& error) {
        page_.inform(u"Erro Número: " + engine::decimalText(error.number) + u"\r\nDescrição: " + error.description);
    }
}

void ppPrincipal::showFailedLoad() const
{
    if (failedLoad_->number == 0)
        return;
    const std::u16string text = u"Rotina: PropertyPage_SelectionChanged\r\nLinha: " +
                                engine::decimalText(failedLoad_->step) + u"\r\nErro: " +
                                engine::decimalText(failedLoad_->number) + u"\r\n" + failedLoad_->description;
    page_.services().environment.desktop.messageBox(platform::BoxIcon::exclamation, platform::BoxButtons::ok, {}, text);
}

// --- masks

// When reading the store fails, the list keeps what was added so far.
void ppPrincipal::fillMasks()
{
    try {
        platform::ItemList& list = page_.items(u"cboMascarasProntas");
        list.clear();
        for (const std::u16string& mask : store_.masks())
            list.add(mask);
    } catch (const engine::Error&) {
        return;
    }
}

// Oddity: tabbing through the list "Máscaras Prontas" copies its text into the mask, also where that text is empty;
// developers clear a mask that way.
void ppPrincipal::copyPreset()
{
    page_.putText(u"txtMascara", page_.text(u"cboMascarasProntas"));
}

// The list is filled by the next load only, so the new mask is not in it yet.
// Oddity: a mask that is saved twice is kept twice; keys of masks are made from the time and must stay.
void ppPrincipal::saveMask()
{
    const std::u16string mask = page_.text(u"cboMascarasProntas");
    if (mask.empty()) {
        page_.inform(u"Informe o texto");
        return;
    }
    const auto answer =
        page_.services().environment.desktop.messageBox(platform::BoxIcon::question, platform::BoxButtons::yesNo, {},
                                                        u"Confirma Inclusão da Mascara <  " + mask + u"  >");
    if (answer != platform::BoxAnswer::no)
        store_.saveMask(mask, page_.items(u"cboMascarasProntas").count());
}

// --- profiles

void ppPrincipal::fillProfiles()
{
    try {
        platform::ItemList& list = page_.items(u"cboProfile");
        for (const std::u16string& name : store_.profileNames())
            list.add(name);
        if (list.count() > 0)
            list.choose(0);
    } catch (const engine::Error&) {
        return;
    }
}

// Oddity: a profile that is saved again is listed twice until the page is opened anew; the list's indexes stay right.
void ppPrincipal::saveProfile()
{
    const std::u16string letters = selectedLetters(page_.items(u"lstLetrasPermitidas"));
    if (letters.empty()) {
        page_.inform(u"Selecione pelo menos um caractere da lista", u"Acesso Negado !");
        return;
    }
    const std::u16string name =
        page_.services().environment.desktop.inputBox(u"Digite o Nome do Profile", u"Vela - By Aldren");
    if (name.empty())
        return;
    store_.saveProfile(name, letters);
    page_.items(u"cboProfile").add(name);
}

bool ppPrincipal::hasChosenProfile(std::u16string_view otherwise)
{
    const platform::ItemList& list = page_.items(u"cboProfile");
    if (list.chosen() < 0) {
        page_.inform(otherwise, u"Operação Cancelada !");
        return false;
    }
    if (list.count() == 0) {
        page_.inform(u"Não existe nenhum profile salvo");
        return false;
    }
    return true;
}

void ppPrincipal::loadProfile()
{
    if (hasChosenProfile(u"Escolha um item para carregar"))
        selectLetters(page_.items(u"lstLetrasPermitidas"), store_.profile(page_.text(u"cboProfile")));
}

void ppPrincipal::deleteProfile()
{
    if (!hasChosenProfile(u"Escolha um item para excluir"))
        return;
    store_.removeProfile(page_.text(u"cboProfile"));
    platform::ItemList& list = page_.items(u"cboProfile");
    list.remove(list.chosen());
    if (list.count() > 0)
        list.choose(0);
}

} // namespace vela::pages
