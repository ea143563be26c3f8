// Values of any kind to the type a property or a text wants, beside the conversions of texts that they rest on.
// Every function takes the locale it works in; none keeps state. What cannot be read raises 13 (type mismatch), what
// does not fit 6 (overflow).
#pragma once

#include "engine/text/date_parse.h"
#include "engine/text/date_text.h"
#include "engine/text/locale.h"
#include "engine/text/number_parse.h"
#include "engine/text/number_text.h"
#include "engine/value.h"

#include <string>
#include <string_view>

namespace vela::engine {

[[nodiscard]] bool isNumeric(const Value& value, const Locale& locale) noexcept; // numbers, True, Empty: yes; dates: no
[[nodiscard]] std::u16string toText(const Value& value, const Locale& locale);   // True "True", Empty ""
[[nodiscard]] bool toBoolean(const Value& value, const Locale& locale);          // "true"/"false" any case, or a number
[[nodiscard]] std::int32_t toLong(const Value& value, const Locale& locale);     // halves to even; 6 beyond 32 bits
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
