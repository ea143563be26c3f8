// Texts to numbers: the numeric test, doubles, currency and the leading number.
// Functions named try* may say no; the others raise 13 (type mismatch) for what they cannot read and 6 (overflow) for
// what does not fit.
#pragma once

#include "engine/text/locale.h"
#include "engine/value.h"

#include <optional>
#include <string_view>

namespace vela::engine {

[[nodiscard]] bool isNumeric(std::u16string_view text, const Locale& locale) noexcept;
[[nodiscard]] std::optional<double> tryParseDouble(std::u16string_view text, const Locale& locale) noexcept;
[[nodiscard]] double toDouble(std::u16string_view text, const Locale& locale);
// Rounds half to even on the decimal text: "1,00005" -> 1.0000.
[[nodiscard]] Currency toCurrency(std::u16string_view text, const Locale& locale);
// The locale-independent leading number: "." is the point, blanks are skipped, 0 when there is none. " 12.5abc" -> 12.5
// "&HFF" and "&O17" are hexadecimal and octal. Raises 6 for a number beyond a double, or beyond 32 bits behind "&".
[[nodiscard]] double leadingNumber(std::u16string_view text);

} // namespace vela::engine
