// Numbers and dates written into a text under construction.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/locale.h"
#include "engine/text/text_writer.h"

namespace vela::engine {

// At most 15 significant digits: 1234.5 -> "1234,5" in pt-BR. With an exponent when the whole part would have more than
// 15 digits, or more than 15 decimals would be needed: 0.000056789 -> "0,000056789", 1/12 -> "8,33333333333333E-02".
void putNumber(double number, const Locale& locale, TextWriter& writer);
// The locale's general date; a time alone on 30 December 1899, no time at midnight of any other day.
void putDate(const Moment& moment, const Locale& locale, TextWriter& writer);
// A picture as the locale keeps it: letters d m y h n s, AM/PM, texts between apostrophes.
inline constexpr std::u16string_view halfMark = u"AM/PM";
void putPicture(const Moment& moment, std::u16string_view picture, const Locale& locale, TextWriter& writer);

} // namespace vela::engine
