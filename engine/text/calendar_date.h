// Civil dates and times of day, and their serial form. Proleptic Gregorian, years 100 to 9999.
#pragma once

#include "engine/value.h"

#include <optional>

namespace vela::engine {

struct CivilDate {
    int year = 1899; // 100..9999
    int month = 12;  // 1..12
    int day = 30;    // 1..31
    friend bool operator==(CivilDate, CivilDate) = default;
};

struct TimeOfDay {
    int hour = 0;   // 0..23
    int minute = 0; // 0..59
    int second = 0; // 0..59
    friend bool operator==(TimeOfDay, TimeOfDay) = default;
};

// The date and the time of day that a serial stands for. A time that rounds up to midnight belongs to the next day.
struct Moment {
    CivilDate date;
    TimeOfDay time;
    friend bool operator==(Moment, Moment) = default;
};

[[nodiscard]] constexpr bool isLeapYear(int year) noexcept
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}
[[nodiscard]] constexpr int daysInMonth(int year, int month) noexcept // month 1..12
{
    return month == 2                                                ? (isLeapYear(year) ? 29 : 28)
           : (month == 4 || month == 6 || month == 9 || month == 11) ? 30
                                                                     : 31;
}
[[nodiscard]] bool isValid(CivilDate date) noexcept;
[[nodiscard]] int weekday(CivilDate date) noexcept;   // 1 Sunday .. 7 Saturday
[[nodiscard]] int dayOfYear(CivilDate date) noexcept; // 1..366
[[nodiscard]] Date makeDate(CivilDate date, TimeOfDay time = {}) noexcept;
[[nodiscard]] std::optional<Moment> momentOf(Date date) noexcept;     // nothing outside the years 100 to 9999
[[nodiscard]] std::optional<CivilDate> civilDate(Date date) noexcept; // nothing outside the years 100 to 9999
[[nodiscard]] TimeOfDay timeOfDay(Date date) noexcept;                // rounded to the second

} // namespace vela::engine
