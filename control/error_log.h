// The error log of the control's own routines, and the texts of its error boxes.
#pragma once

#include "engine/error.h"
#include "platform/environment.h"

#include <string>
#include <string_view>

namespace vela::control {

namespace label {
inline constexpr std::u16string_view keyDown = u"Procedimento: sKeyDown";
// Oddity: the timer's label in the log ends with a blank; readers of the log compare the line.
inline constexpr std::u16string_view timer = u"Procedimento: Vela.Timer ";
inline constexpr std::u16string_view mouseMove = u"Procedimento: txtMouseMove";
inline constexpr std::u16string_view lostFocus = u"Procedimento: Txt_LostFocus";
inline constexpr std::u16string_view mask = u"Procedimento: ValidaMascara";
inline constexpr std::u16string_view number = u"Procedimento: ValidaNumero";
inline constexpr std::u16string_view date = u"Procedimento: ValidaData";
} // namespace label

// Appends a record to the log in the folder that the library was loaded from. An error of the log file reaches the
// caller.
// Oddity: a library in a drive's root logs to a path with two separators ("C:\\Log_Vela.txt"); log files in use stand
// under that name.
void appendToLog(platform::Environment& environment, const engine::Error& error, std::u16string_view label);

// "13-Type mismatch"
[[nodiscard]] std::u16string numberAndDescription(const engine::Error& error);
// "Erro: 13", "Linha: 3", "Type mismatch)", "Rotina: Txt_Change"
// Oddity: the change box closes a parenthesis that it never opened; texts of boxes are compared byte for byte.
[[nodiscard]] std::u16string changeFailureText(const engine::Error& error);
// "Erro Inesperado", an empty line, then the description.
// Oddity: "Informações Técnicas:" is followed by no blank; texts of boxes are compared byte for byte.
[[nodiscard]] std::u16string clickFailureText(const engine::Error& error);
// "5-Invalid procedure call or argument", "erl = 2"
[[nodiscard]] std::u16string gotFocusFailureText(const engine::Error& error);

} // namespace vela::control
