// Day-first date texts and date arithmetic of the calendar.
#include "popups/grid_dates.h"

#include "engine/text/conversions.h"

#include <algorithm>

namespace vela::popups {

namespace {

void appendDigits(std::u16string& into, int number, int digits)
{
    const std::size_t end = into.size() + static_cast<std::size_t>(digits);
    into.resize(end, u'0');
    for (std::size_t at = end; number > 0 && digits > 0; --digits, number /= 10)
        into[--at] = static_cast<char16_t>(u'0' + number % 10);
}

// -1 when a character is no digit.
int readDigits(std::u16string_view digits) noexcept
{
    int number = 0;
    for (const char16_t c : digits) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c - u'0');
    }
    return number;
}

} // namespace

std::u16string dayFirstText(engine::CivilDate date)
{
    std::u16string text;
    text.reserve(10);
    appendDigits(text, date.day, 2);
    text += u'/';
    appendDigits(text, date.month, 2);
    text += u'/';
    appendDigits(text, date.year, 4);
    return text;
}

std::optional<engine::CivilDate> tryReadDayFirst(std::u16string_view text) noexcept
{
    if (text.size() != 10 || text[2] != u'/' || text[5] != u'/')
        return std::nullopt;
    const engine::CivilDate date{readDigits(text.substr(6)), readDigits(text.substr(3, 2)),
                                 readDigits(text.substr(0, 2))};
    if (date.year < 0 || date.month < 0 || date.day < 0 || !engine::isValid(date))
        return std::nullopt;
    return date;
}

std::optional<engine::CivilDate> tryReadDate(const engine::Value& value, const engine::Locale& locale,
                                             engine::Date today)
{
    if (const auto* date = std::get_if<engine::Date>(&value))
        return engine::civilDate(*date);
    if (const auto* text = std::get_if<std::u16string>(&value))
        if (const auto read = engine::tryParseDate(*text, locale, today))
            return engine::civilDate(*read);
    return std::nullopt;
}

engine::CivilDate civilToday(engine::Date now) noexcept
{
    return engine::civilDate(now).value_or(engine::CivilDate{});
}

engine::CivilDate addDays(engine::CivilDate date, int days) noexcept
{
    const engine::Date start = engine::makeDate(date);
    return engine::civilDate(engine::Date{start.serial + days}).value_or(date);
}

engine::CivilDate addMonths(engine::CivilDate date, int months) noexcept
{
    const int count = date.year * 12 + date.month - 1 + months;
    const int year = count / 12;
    const int month = count % 12 + 1;
    return {year, month, std::min(date.day, engine::daysInMonth(year, month))};
}

} // namespace vela::popups
