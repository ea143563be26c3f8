// Reads the user's locale: separators, patterns, names and the window of two-digit years.
#include "platform/win32/environment.h"
#include "platform/win32/text.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace vela::win32 {
namespace {

std::u16string info(LCTYPE type)
{
    wchar_t value[128];
    const int units = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, value, static_cast<int>(std::size(value)));
    return units > 1 ? utf16({value, static_cast<std::size_t>(units - 1)}) : std::u16string();
}

int number(LCTYPE type, int otherwise)
{
    DWORD value = 0;
    const int read = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type | LOCALE_RETURN_NUMBER,
                                     reinterpret_cast<wchar_t*>(&value), sizeof value / sizeof(wchar_t));
    return read ? static_cast<int>(value) : otherwise;
}

// "d 'de' MMMM" -> "d 'de' mmmm"
std::u16string datePattern(std::u16string system)
{
    bool quoted = false;
    for (char16_t& unit : system) {
        quoted ^= unit == u'\'';
        if (unit == u'M' && !quoted)
            unit = u'm';
    }
    return system;
}

// "HH:mm:ss" -> "hh:nn:ss", "h:mm tt" -> "h:nn AM/PM"
std::u16string timePattern(const std::u16string& system)
{
    std::u16string pattern;
    bool marked = false;
    for (const char16_t unit : system) {
        if (unit == u'H')
            pattern += u'h';
        else if (unit == u'm')
            pattern += u'n';
        else if (unit != u't')
            pattern += unit;
        else if (!marked)
            pattern += u"AM/PM";
        marked |= unit == u't';
    }
    return pattern;
}

// By which of day, month and year stands first: "yyyy-MM-dd" -> year, month, day.
engine::DateOrder orderOf(const std::u16string& shortDate)
{
    for (const char16_t unit : shortDate) {
        if (unit == u'd')
            return engine::DateOrder::dayMonthYear;
        if (unit == u'm')
            return engine::DateOrder::monthDayYear;
        if (unit == u'y')
            return engine::DateOrder::yearMonthDay;
    }
    return engine::DateOrder::dayMonthYear;
}

void readNames(engine::Locale& locale)
{
    for (std::size_t month = 0; month < locale.months.size(); ++month) {
        locale.months[month] = info(LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(month));
        locale.shortMonths[month] = info(LOCALE_SABBREVMONTHNAME1 + static_cast<LCTYPE>(month));
    }
    // The system's first day is Monday, the locale's is Sunday.
    for (std::size_t day = 0; day < locale.days.size(); ++day) {
        const auto system = static_cast<LCTYPE>((day + 6) % 7);
        locale.days[day] = info(LOCALE_SDAYNAME1 + system);
        locale.shortDays[day] = info(LOCALE_SABBREVDAYNAME1 + system);
    }
}

int twoDigitYearMax(int otherwise)
{
    DWORD year = 0;
    const bool read = GetCalendarInfoEx(LOCALE_NAME_USER_DEFAULT, CAL_GREGORIAN, nullptr,
                                        CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER, nullptr, 0, &year) != 0;
    return read && year ? static_cast<int>(year) : otherwise;
}

// The words of the named formats are the language's, which the system does not tell: Portuguese or English.
engine::Locale withWords()
{
    const bool portuguese = info(LOCALE_SISO639LANGNAME) == u"pt";
    return portuguese ? engine::ptBr() : engine::enUs();
}

engine::Locale readLocale()
{
    engine::Locale locale = withWords();
    locale.name = info(LOCALE_SNAME);
    locale.decimal = info(LOCALE_SDECIMAL);
    locale.grouping = info(LOCALE_STHOUSAND);
    locale.currencySymbol = info(LOCALE_SCURRENCY);
    locale.negativeSign = info(LOCALE_SNEGATIVESIGN);
    locale.shortDate = datePattern(info(LOCALE_SSHORTDATE));
    locale.longDate = datePattern(info(LOCALE_SLONGDATE));
    locale.longTime = timePattern(info(LOCALE_STIMEFORMAT));
    locale.shortTime = timePattern(info(LOCALE_SSHORTTIME));
    locale.dateOrder = orderOf(locale.shortDate);
    locale.dateSeparator = info(LOCALE_SDATE);
    locale.timeSeparator = info(LOCALE_STIME);
    locale.am = info(LOCALE_S1159);
    locale.pm = info(LOCALE_S2359);
    locale.firstDayOfWeek = (number(LOCALE_IFIRSTDAYOFWEEK, 6) + 1) % 7 + 1;
    locale.twoDigitYearMax = twoDigitYearMax(locale.twoDigitYearMax);
    readNames(locale);
    return locale;
}

} // namespace

const engine::Locale& LocaleSource::locale() const
{
    if (!read_) {
        locale_ = readLocale();
        read_ = true;
    }
    return locale_;
}

} // namespace vela::win32
