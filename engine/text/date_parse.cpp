// Texts to dates: which numbers of a text are its time, and which its day, month and year.
#include "engine/text/date_parse.h"

#include "engine/error.h"
#include "engine/text/characters.h"
#include "engine/text/date_form.h"
#include "engine/text/date_scanner.h"

#include <span>
#include <utility>

namespace vela::engine {
namespace {

enum class DateVerdict { date, notDate, outOfRange };

struct RawDate {
    std::uint32_t day = 30, month = 12, year = 1899;
};

struct RawTime {
    std::uint32_t hour = 0, minute = 0, second = 0;
};

// How the fields of a text divide: some of them are the time, the others, in a row, the date.
struct Division {
    RawTime time;
    std::size_t firstOfDate = 0;
    std::size_t dateFields = 0;
};

constexpr bool isDayOfMonth(std::uint32_t day, std::uint32_t month, std::uint32_t year) noexcept
{
    return day >= 1 && month >= 1 && month <= 12 &&
           day <= static_cast<std::uint32_t>(daysInMonth(static_cast<int>(year), static_cast<int>(month)));
}

// The orders in which three numbers can be a date, as bits of a set.
enum Order : unsigned { mdy = 1, ymd = 2, ydm = 4, dmy = 8, myd = 16 };

unsigned possibleOrders(std::span<const DateField> fields) noexcept
{
    const bool three = fields.size() > 2;
    if (fields[0].month)
        return mdy;
    if (fields[1].month)
        return three ? dmy | ymd : dmy;
    if (three && fields[2].month)
        return ydm;
    return three ? mdy | dmy | ymd | ydm : mdy | dmy;
}

// First the locale's own order, then the year in front, then the rest.
std::array<unsigned, 3> preference(DateOrder order) noexcept
{
    constexpr unsigned all = mdy | ymd | ydm | dmy | myd;
    switch (order) {
    case DateOrder::dayMonthYear: return {dmy, ymd, all};
    case DateOrder::monthDayYear: return {mdy, ymd, all};
    case DateOrder::yearMonthDay: return {ymd, mdy, all};
    }
    return {};
}

RawDate arranged(Order order, std::uint32_t first, std::uint32_t second, std::uint32_t third) noexcept
{
    switch (order) {
    case mdy: return {second, first, third};
    case ymd: return {third, second, first};
    case ydm: return {second, third, first};
    case dmy: return {first, second, third};
    case myd: return {third, first, second};
    }
    return {};
}

bool arrange(unsigned orders, DateOrder preferred, std::array<std::uint32_t, 3> numbers, RawDate& date) noexcept
{
    for (const unsigned wanted : preference(preferred)) {
        for (const Order order : {mdy, ymd, ydm, dmy, myd}) {
            if ((orders & wanted & order) != 0) {
                date = arranged(order, numbers[0], numbers[1], numbers[2]);
                if (isDayOfMonth(date.day, date.month, date.year))
                    return true;
            }
        }
    }
    return false;
}

std::uint32_t fullYear(std::uint32_t year, const Locale& locale) noexcept
{
    if (year > 99)
        return year;
    const auto last = static_cast<std::uint32_t>(locale.twoDigitYearMax);
    const std::uint32_t century = last / 100 * 100;
    return year <= last % 100 ? century + year : century - 100 + year;
}

// Two numbers are a day and a month of this year, or else a month and a year.
bool dateOf(std::span<const DateField> fields, const Locale& locale, Date today, RawDate& date) noexcept
{
    if (fields.empty())
        return true;
    if (fields.size() == 1)
        return false;
    const std::uint32_t first = fields[0].value, second = fields[1].value;
    if (fields.size() == 3)
        return arrange(possibleOrders(fields), locale.dateOrder, {first, second, fields[2].value}, date);
    const auto now = civilDate(today);
    const auto thisYear = static_cast<std::uint32_t>(now ? now->year : CivilDate{}.year);
    return arrange(possibleOrders(fields), locale.dateOrder, {first, second, thisYear}, date) ||
           arrange(ymd | myd, locale.dateOrder, {first, second, 1}, date);
}

bool anyHalf(const DateFields& fields, std::size_t first, std::size_t last) noexcept
{
    for (; first < last; ++first)
        if (fields.field[first].hasHalf())
            return true;
    return false;
}

// No field has a time separator: a time is then the one number marked AM or PM, in front or at the end.
bool divideUnmarked(const DateFields& fields, Division& division) noexcept
{
    if (!fields.hasHalf()) {
        division.dateFields = fields.count;
        return fields.count == 2 || fields.count == 3;
    }
    if (fields.count == 2 || fields.count > 4)
        return false;
    division.dateFields = fields.count - 1;
    const bool inFront = fields.field[0].hasHalf();
    if (!inFront && !fields.field[fields.count - 1].hasHalf())
        return false;
    division.firstOfDate = inFront && fields.count > 1 ? 1 : 0;
    division.time.hour = fields.field[inFront ? 0 : fields.count - 1].value;
    return true;
}

// The time stands in fields `first` to `first + length - 1`, the date in all others.
bool divideAt(const DateFields& fields, std::size_t first, std::size_t length, Division& division) noexcept
{
    const std::size_t end = first + length;
    division.time.hour = fields.field[first].value;
    division.time.minute = fields.field[first + 1].value;
    division.time.second = length == 3 && end <= DateFields::most ? fields.field[first + 2].value : 0;
    division.firstOfDate = first == 0 ? length : 0;
    division.dateFields = fields.count - length;
    return first == 0 ? !anyHalf(fields, end, fields.count) : !anyHalf(fields, 0, first);
}

// Bit n is set when a time separator stands behind field n.
unsigned timeMarks(const DateFields& fields) noexcept
{
    unsigned marks = 0;
    for (std::size_t i = 0; i + 1 < DateFields::most; ++i)
        marks |= fields.field[i].timeSeparator ? 1U << i : 0;
    return marks;
}

bool divide(const DateFields& fields, Division& division) noexcept
{
    const std::size_t count = fields.count;
    switch (timeMarks(fields)) {
    case 0x00: return divideUnmarked(fields, division);
    case 0x01: return (count == 2 || count == 4 || count == 5) && divideAt(fields, 0, 2, division);
    case 0x03: return (count == 3 || count == 5 || count == 6) && divideAt(fields, 0, 3, division);
    case 0x04: return count == 4 && divideAt(fields, 2, 2, division);
    case 0x08: return count == 5 && divideAt(fields, 3, 2, division);
    case 0x0C: return count == 5 && divideAt(fields, 2, 3, division);
    case 0x18: return count >= 5 && divideAt(fields, 3, 3, division);
    default: return false;
    }
}

constexpr bool isTime(RawTime time) noexcept
{
    return time.hour <= 23 && time.minute <= 59 && time.second <= 59;
}

// Points between the three numbers of a date are as good as "/" where no time can be meant: "31.12.2024 14:05". Where
// the month stands first, a date with points has no time behind it.
bool isPointedDate(const DateFields& fields, std::size_t first, const Locale& locale) noexcept
{
    const std::span three(fields.field.data() + first, 3);
    const bool pointed = three[0].point && three[1].point && !three[2].timeSeparator && !three[0].hasHalf() &&
                         !three[1].hasHalf() && !three[0].month && !three[1].month && !three[2].month;
    const bool behindTime = first > 0 && fields.field[first - 1].timeSeparator;
    return pointed && !behindTime && (fields.count == 3 || locale.dateOrder == DateOrder::dayMonthYear) &&
           !isTime({three[0].value, three[1].value, three[2].value});
}

void separatePointedDate(DateFields& fields, const Locale& locale) noexcept
{
    for (std::size_t first = 0; first + 3 <= fields.count; ++first) {
        if (isPointedDate(fields, first, locale)) {
            fields.field[first].timeSeparator = fields.field[first + 1].timeSeparator = false;
            return;
        }
    }
}

// "0.0" is read as a number and is no time.
bool isPointedZero(const DateFields& fields) noexcept
{
    return fields.count == 2 && !fields.hasHalf() && fields.field[0].point && fields.field[0].value == 0 &&
           fields.field[1].value == 0;
}

bool divideFields(const DateFields& fields, Division& division) noexcept
{
    if (fields.count == 0 || (fields.count == 1 && !fields.hasHalf()) || isPointedZero(fields))
        return false;
    return divide(fields, division);
}

DateVerdict completed(RawDate raw, TimeOfDay time, const Locale& locale, Date& result) noexcept
{
    const CivilDate date{static_cast<int>(fullYear(raw.year, locale)), static_cast<int>(raw.month),
                         static_cast<int>(raw.day)};
    if (!isValid(date))
        return DateVerdict::outOfRange;
    result = makeDate(date, time);
    return DateVerdict::date;
}

DateVerdict readFields(std::u16string_view text, const Locale& locale, Date today, Date& result) noexcept
{
    DateFields fields;
    Division division;
    if (!scanDateFields(text, locale, fields))
        return DateVerdict::notDate;
    separatePointedDate(fields, locale);
    if (!divideFields(fields, division))
        return DateVerdict::notDate;
    RawDate raw;
    const std::span dateFields(fields.field.data() + division.firstOfDate, division.dateFields);
    if (division.dateFields > 3 || !dateOf(dateFields, locale, today, raw) || !isTime(division.time))
        return DateVerdict::notDate;
    TimeOfDay time{static_cast<int>(division.time.hour), static_cast<int>(division.time.minute),
                   static_cast<int>(division.time.second)};
    if (time.hour < 12 && fields.afternoon)
        time.hour += 12;
    else if (time.hour == 12 && fields.morning)
        time.hour = 0;
    return completed(raw, time, locale, result);
}

DateVerdict readOwn(std::u16string_view text, const Locale& locale, Date& result) noexcept
{
    const auto own = readOwnForm(untilNul(text), locale);
    if (!own)
        return DateVerdict::notDate;
    const RawDate raw{static_cast<std::uint32_t>(own->date.day), static_cast<std::uint32_t>(own->date.month),
                      static_cast<std::uint32_t>(own->date.year)};
    const RawTime time{static_cast<std::uint32_t>(own->time.hour), static_cast<std::uint32_t>(own->time.minute),
                       static_cast<std::uint32_t>(own->time.second)};
    return isDayOfMonth(raw.day, raw.month, fullYear(raw.year, locale)) && isTime(time)
               ? completed(raw, own->time, locale, result)
               : DateVerdict::notDate;
}

// A text in one of the locale's own forms is read by that form first; only then are its numbers and names interpreted.
DateVerdict readDate(std::u16string_view text, const Locale& locale, Date today, Date& result) noexcept
{
    const DateVerdict own = readOwn(text, locale, result);
    return own == DateVerdict::notDate ? readFields(text, locale, today, result) : own;
}

} // namespace

bool isDate(std::u16string_view text, const Locale& locale, Date today) noexcept
{
    return tryParseDate(text, locale, today).has_value();
}

std::optional<Date> tryParseDate(std::u16string_view text, const Locale& locale, Date today) noexcept
{
    Date date;
    return readDate(text, locale, today, date) == DateVerdict::date ? std::optional(date) : std::nullopt;
}

Date toDate(std::u16string_view text, const Locale& locale, Date today)
{
    Date date;
    switch (readDate(text, locale, today, date)) {
    case DateVerdict::date: return date;
    case DateVerdict::outOfRange: raise(error_number::overflow);
    case DateVerdict::notDate: break;
    }
    raise(error_number::typeMismatch);
}

} // namespace vela::engine
