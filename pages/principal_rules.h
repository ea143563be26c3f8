// What the main page checks and prepares before it writes.
#pragma once

#include <string>
#include <string_view>

namespace vela::pages {

enum class DateFormatFault {
    none,
    character,     // holds one that is neither separator nor placeholder
    noPlaceholder, // says nothing of a date
};

// Separators , . / - ; = * : and the letters d m y h n s in either case. "dd/MM/yy" -> none, "dd/x" -> character
[[nodiscard]] DateFormatFault checkDateFormat(std::u16string_view format) noexcept;

// Each "#", "@" and "?" becomes the prompt: "@@@-####", "_" -> "___-____". Without a prompt the mask stays.
[[nodiscard]] std::u16string prepareMask(std::u16string_view mask, std::u16string_view prompt);

} // namespace vela::pages
