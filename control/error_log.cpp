// Log records and error texts.
#include "control/error_log.h"

#include "control/trap.h"

#include <array>
#include <charconv>

namespace vela::control {

std::u16string decimalText(int number)
{
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

void appendToLog(platform::Environment& environment, const engine::Error& error, std::u16string_view label)
{
    environment.log.append(environment.system.libraryFolder() + u"\\Log_Vela.txt",
                           {error.number, error.description, std::u16string(label)});
}

std::u16string numberAndDescription(const engine::Error& error)
{
    return decimalText(error.number) + u"-" + error.description;
}

std::u16string changeFailureText(const engine::Error& error)
{
    return u"Erro: " + decimalText(error.number) + u"\r\nLinha: " + decimalText(error.step) + u"\r\n" +
           error.description + u")\r\nRotina: Txt_Change";
}

std::u16string clickFailureText(const engine::Error& error)
{
    return u"Erro Inesperado\r\n\r\nInformações Técnicas:" + error.description;
}

std::u16string gotFocusFailureText(const engine::Error& error)
{
    return numberAndDescription(error) + u"\r\nerl = " + decimalText(error.step);
}

} // namespace vela::control
