// The calendar's own date texts, day first in every locale, and what counts as a date handed in from outside.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/locale.h"
#include "engine/value.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::popups {

// {2024, 3, 5} -> "05/03/2024"; the year has four digits.
[[nodiscard]] std::u16string dayFirstText(engine::CivilDate date);
// The inverse; nothing for a text of another form or a day that does not exist.
[[nodiscard]] std::optional<engine::CivilDate> tryReadDayFirst(std::u16string_view text) noexcept;

// A text readable as a date in the locale, or a date value, without its time of day. A text that is only a time is
// 30 December 1899. Numbers, truth values and Empty are no dates.
[[nodiscard]] std::optional<engine::CivilDate> tryReadDate(const engine::Value& value, const engine::Locale& locale,
                                                           engine::Date today);
[[nodiscard]] engine::CivilDate civilToday(engine::Date now) noexcept;

// Days from one to the other, 0 for the same day; both are valid.
[[nodiscard]] engine::CivilDate addDays(engine::CivilDate date, int days) noexcept;
// Keeps the day where the month has it, else its last day: 31 January + 1 month -> 28 or 29 February.
[[nodiscard]] engine::CivilDate addMonths(engine::CivilDate date, int months) noexcept;

} // namespace vela::popups
