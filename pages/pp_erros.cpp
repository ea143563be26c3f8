// Edits the error behaviour; some of its controls follow others.
#include "pages/pp_erros.h"

#include "pages/layouts.h"

namespace vela::pages {

namespace {

constexpr engine::Colour greyBackground{0x00DFDFDF};
constexpr engine::Colour whiteBackground{0x00FFFFFF};
constexpr std::u16string_view alertHelp =
    u"Função válida somente para o formato de números e datas\r\n"
    u"Exibe uma MsgBox quando o campo perde o foco utilizando o texto padrão.\r\n"
    u"Caso queria mudar a mensagem de erro, basta marcar a caixa ( Personalizar Mensagem de erro ) e Informar o "
    u"texto logo abaixo";

} // namespace

ppErros::ppErros(const PageServices& services, PageSite& site) : page_(errosLayout(), services, site)
{
    page_.fieldsMarkChanged();
    page_.onClick(u"chkExibirAlertaPadrao", [this] { followAlert(); });
    page_.onClick(u"chkPersonalizarMsgErro", [this] { followCustomMessage(); });
    page_.onClick(u"chkLimpaCampo", [this] { followClearField(); });
    page_.help(u"CmdHelpErroAlert", alertHelp);
    followAlert();
    followCustomMessage();
}

void ppErros::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] {
        for (PageForm::Bound& field : page_.fields())
            page_.load(field);
        followAlert();
        followCustomMessage();
        // Only loading empties the unused message; unchecking by hand keeps it until the next load.
        if (!page_.checked(u"chkPersonalizarMsgErro"))
            page_.putText(u"txtMsgCustom", {});
        followClearField();
    });
}

bool ppErros::apply()
{
    page_.requireLoaded();
    if (page_.form().enabled(page_.id(u"txtMsgCustom")) && page_.text(u"txtMsgCustom").empty()) {
        page_.inform(u"Informe o texto da mensagem.");
        return false;
    }
    page_.write();
    page_.putChanged(false);
    return true;
}

// Unchecking the custom message is a click of its own: followCustomMessage() runs at once.
void ppErros::followAlert()
{
    const bool alert = page_.checked(u"chkExibirAlertaPadrao");
    if (!alert)
        page_.check(u"chkPersonalizarMsgErro", false);
    page_.enable(u"chkPersonalizarMsgErro", alert);
}

void ppErros::followCustomMessage()
{
    const bool custom = page_.checked(u"chkPersonalizarMsgErro");
    page_.enable(u"LBLTextCustom", custom);
    page_.enable(u"txtMsgCustom", custom);
    page_.putBackColour(page_.id(u"txtMsgCustom"), custom ? whiteBackground : greyBackground);
}

void ppErros::followClearField()
{
    const bool clears = page_.checked(u"chkLimpaCampo");
    if (clears)
        page_.check(u"chkErrorFocus", false);
    page_.enable(u"chkErrorFocus", !clears);
}

} // namespace vela::pages
