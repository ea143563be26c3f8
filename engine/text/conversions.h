// Locale-aware conversions between texts, numbers and dates: what is a number, what is a date, and back.
// Every function takes the locale it works in; none keeps state. Those named try* may say no; the others raise
// 13 (type mismatch) for what they cannot read and 6 (overflow) for what does not fit.
#pragma once

#include "engine/text/locale.h"
#include "engine/value.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

[[nodiscard]] bool isNumeric(std::u16string_view text, const Locale& locale) noexcept;
[[nodiscard]] bool isNumeric(const Value& value, const Locale& locale) noexcept; // numbers, True, Empty: yes; dates: no
[[nodiscard]] std::optional<double> tryParseDouble(std::u16string_view text, const Locale& locale) noexcept;
[[nodiscard]] double toDouble(std::u16string_view text, const Locale& locale);
// Rounds half to even on the decimal text: "1,00005" -> 1.0000.
[[nodiscard]] Currency toCurrency(std::u16string_view text, const Locale& locale);
// The locale-independent leading number: "." is the point, blanks are skipped, 0 when there is none. " 12.5abc" -> 12.5
// "&HFF" and "&O17" are hexadecimal and octal. Raises 6 for a number beyond a double, or beyond 32 bits behind "&".
[[nodiscard]] double leadingNumber(std::u16string_view text);
// At most 15 significant digits, no grouping, the locale's decimal symbol: 1234.5 -> "1234,5" in pt-BR. An exponent
// only where 15 whole digits or 15 decimals would not do: 1/12 -> "8,33333333333333E-02".
[[nodiscard]] std::u16string numberToText(double number, const Locale& locale);

// `today` supplies the year of a date text without one.
[[nodiscard]] bool isDate(std::u16string_view text, const Locale& locale, Date today) noexcept;
[[nodiscard]] std::optional<Date> tryParseDate(std::u16string_view text, const Locale& locale, Date today) noexcept;
[[nodiscard]] Date toDate(std::u16string_view text, const Locale& locale, Date today);
// The locale's general date: "01/02/2024", "01/02/2024 14:05:33", "14:05:33" for a bare time.
[[nodiscard]] std::u16string dateToText(Date date, const Locale& locale);

// Conversions of a put value to a property's type, and of a value to text for texts.
[[nodiscard]] std::u16string toText(const Value& value, const Locale& locale); // True "True", Empty ""
[[nodiscard]] bool toBoolean(const Value& value, const Locale& locale);        // "true"/"false" any case, or a number
[[nodiscard]] std::int32_t toLong(const Value& value, const Locale& locale);   // halves to even; 6 beyond 32 bits
[[nodiscard]] double toDouble(const Value& value, const Locale& locale);
[[nodiscard]] Date toDate(const Value& value, const Locale& locale, Date today); // numbers are serials

// A text is read as a text, whichever way it is held.
[[nodiscard]] inline bool isNumeric(const std::u16string& text, const Locale& locale) noexcept
{
    return isNumeric(std::u16string_view(text), locale);
}
[[nodiscard]] inline bool isNumeric(const char16_t* text, const Locale& locale) noexcept
{
    return isNumeric(std::u16string_view(text), locale);
}
[[nodiscard]] inline double toDouble(const std::u16string& text, const Locale& locale)
{
    return toDouble(std::u16string_view(text), locale);
}
[[nodiscard]] inline double toDouble(const char16_t* text, const Locale& locale)
{
    return toDouble(std::u16string_view(text), locale);
}
[[nodiscard]] inline Date toDate(const std::u16string& text, const Locale& locale, Date today)
{
    return toDate(std::u16string_view(text), locale, today);
}
[[nodiscard]] inline Date toDate(const char16_t* text, const Locale& locale, Date today)
{
    return toDate(std::u16string_view(text), locale, today);
}

} // namespace vela::engine
