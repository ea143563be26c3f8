// Civil dates to serials and back.
#include "engine/text/calendar_date.h"

#include <cmath>

namespace vela::engine {
namespace {

constexpr int secondsPerDay = 86400;
constexpr double firstSerialExcluded = -657435.0; // 31 December 99
constexpr double lastSerialExcluded = 2958466.0;  // 1 January 10000
// A time of day held in a double falls short of its second by less than this part of a day.
constexpr double slack = 1e-11;

// Days from 1 March of year 0, a calendar whose leap day is the last day of its year.
constexpr int dayNumber(CivilDate date) noexcept
{
    const int year = date.month > 2 ? date.year : date.year - 1;
    const int month = date.month > 2 ? date.month - 3 : date.month + 9;
    return year * 365 + year / 4 - year / 100 + year / 400 + (month * 153 + 2) / 5 + date.day - 1;
}

constexpr int serialZero = dayNumber({1899, 12, 30});

constexpr CivilDate civilFromSerial(int serial) noexcept
{
    const int number = serial + serialZero;
    const int century = (number * 4 + 3) / 146097;
    const int inCentury = number - century * 146097 / 4;
    const int year = (inCentury * 4 + 3) / 1461;
    const int inYear = inCentury - year * 1461 / 4;
    const int month = (inYear * 5 + 2) / 153;
    const int day = inYear - (month * 153 + 2) / 5 + 1;
    const int civilYear = century * 100 + year;
    return month < 10 ? CivilDate{civilYear, month + 3, day} : CivilDate{civilYear + 1, month - 9, day};
}

static_assert(civilFromSerial(0) == CivilDate{1899, 12, 30});
static_assert(civilFromSerial(60) == CivilDate{1900, 2, 28});
static_assert(civilFromSerial(-657434) == CivilDate{100, 1, 1});
static_assert(civilFromSerial(2958465) == CivilDate{9999, 12, 31});

constexpr int serialOf(CivilDate date) noexcept
{
    return dayNumber(date) - serialZero;
}

} // namespace

bool isValid(CivilDate date) noexcept
{
    return date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 && date.day >= 1 &&
           date.day <= daysInMonth(date.year, date.month);
}

int weekday(CivilDate date) noexcept
{
    const int sinceSaturday = serialOf(date) % 7; // 30 December 1899 was a Saturday
    return (sinceSaturday + 13) % 7 + 1;
}

int dayOfYear(CivilDate date) noexcept
{
    return serialOf(date) - serialOf({date.year, 1, 1}) + 1;
}

Date makeDate(CivilDate date, TimeOfDay time) noexcept
{
    const int serial = serialOf(date);
    const double fraction = static_cast<double>(time.hour * 3600 + time.minute * 60 + time.second) / secondsPerDay;
    return {serial < 0 ? serial - fraction : serial + fraction};
}

std::optional<Moment> momentOf(Date date) noexcept
{
    if (!(date.serial > firstSerialExcluded && date.serial < lastSerialExcluded))
        return std::nullopt;
    int serial = static_cast<int>(date.serial);
    const double fraction = std::fabs(date.serial - serial);
    int seconds = static_cast<int>((fraction + slack) * secondsPerDay + 0.5);
    if (seconds >= secondsPerDay) {
        const bool lastDay = serial + 1 >= lastSerialExcluded;
        seconds = lastDay ? secondsPerDay - 1 : 0;
        serial += lastDay ? 0 : 1;
    }
    return Moment{civilFromSerial(serial), {seconds / 3600, seconds / 60 % 60, seconds % 60}};
}

std::optional<CivilDate> civilDate(Date date) noexcept
{
    const auto moment = momentOf(date);
    return moment ? std::optional(moment->date) : std::nullopt;
}

TimeOfDay timeOfDay(Date date) noexcept
{
    const auto moment = momentOf(date);
    return moment ? moment->time : TimeOfDay{};
}

} // namespace vela::engine
