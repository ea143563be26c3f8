// Dates to texts in the locale's own forms.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/locale.h"
#include "engine/text/text_writer.h"

#include <string>
#include <string_view>

namespace vela::engine {

// The locale's general date: "01/02/2024", "01/02/2024 14:05:33", "14:05:33" for a bare time, which is one on 30 December
// 1899. Raises 6 outside the years 100 to 9999.
[[nodiscard]] std::u16string dateToText(Date date, const Locale& locale);
void putDate(const Moment& moment, const Locale& locale, TextWriter& writer);

// A picture as the locale keeps it: letters d m y h n s, AM/PM, texts between apostrophes.
inline constexpr std::u16string_view halfMark = u"AM/PM";
void putPicture(const Moment& moment, std::u16string_view picture, const Locale& locale, TextWriter& writer);
// What `length` of the letters d m y H h n s stand for: "d" the day, "mm" the month in two digits, "mmm" its short name.
// "h" is of twelve hours where asked, "H" never. Other letters stand for themselves.
void putDateLetters(char16_t letter, int length, const Moment& moment, bool twelveHours, const Locale& locale,
                    TextWriter& writer);

} // namespace vela::engine
