// Log records and error texts.
#include "control/error_log.h"

#include "control/trap.h"
#include "engine/text/decimal_text.h"

namespace vela::control {

void appendToLog(platform::Environment& environment, const engine::Error& error, std::u16string_view label)
{
    environment.log.append(environment.system.libraryFolder() + u"\\Log_Vela.txt",
                           {error.number, error.description, std::u16string(label)});
}

std::u16string numberAndDescription(const engine::Error& error)
{
    return engine::decimalText(error.number) + u"-" + error.description;
}

std::u16string changeFailureText(const engine::Error& error)
{
    return u"Erro: " + engine::decimalText(error.number) + u"\r\nLinha: " + engine::decimalText(error.step) + u"\r\n" +
           error.description + u")\r\nRotina: Txt_Change";
}

std::u16string clickFailureText(const engine::Error& error)
{
    return u"Erro Inesperado\r\n\r\nInformações Técnicas:" + error.description;
}

std::u16string gotFocusFailureText(const engine::Error& error)
{
    return numberAndDescription(error) + u"\r\nerl = " + engine::decimalText(error.step);
}

} // namespace vela::control
