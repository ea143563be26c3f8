// The error log of the control's own routines, and the texts of its error boxes.
#pragma once

#include "engine/error.h"
#include "platform/environment.h"

#include <string>
#include <string_view>

namespace vela::control {

namespace label {
inline constexpr std::u16string_view keyDown = u"Procedimento: sKeyDown";
inline constexpr std::u16string_view timer = u"Procedimento: Vela.Timer "; // the trailing blank is kept
inline constexpr std::u16string_view mouseMove = u"Procedimento: txtMouseMove";
inline constexpr std::u16string_view lostFocus = u"Procedimento: Txt_LostFocus";
inline constexpr std::u16string_view mask = u"Procedimento: ValidaMascara";
inline constexpr std::u16string_view number = u"Procedimento: ValidaNumero";
inline constexpr std::u16string_view date = u"Procedimento: ValidaData";
} // namespace label

// One record in the folder the library was loaded from. That folder's path is followed by the separator as it stands:
// "C:\" gives "C:\\Log_Vela.txt". What the log file raises reaches the caller.
void appendToLog(platform::Environment& environment, const engine::Error& error, std::u16string_view label);

// "13-Type mismatch"
[[nodiscard]] std::u16string numberAndDescription(const engine::Error& error);
// "Erro: 13", "Linha: 3", "Type mismatch)", "Rotina: Txt_Change"; the bracket that nothing opens is kept.
[[nodiscard]] std::u16string changeFailureText(const engine::Error& error);
// "Erro Inesperado", an empty line, "Informações Técnicas:" and the description without a blank.
[[nodiscard]] std::u16string clickFailureText(const engine::Error& error);
// "5-Invalid procedure call or argument", "erl = 2"
[[nodiscard]] std::u16string gotFocusFailureText(const engine::Error& error);

} // namespace vela::control
