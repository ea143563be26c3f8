// Reads a locale: separators, forms, patterns, names and the window of two-digit years. Hears when the user's changes.
#include "platform/win32/environment.h"
#include "platform/win32/text.h"
#include "platform/win32/window.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace vela::win32 {
namespace {

// One locale's entries. A locale asked for by name is the system's own, without what the user has changed in it.
class Entries {
public:
    explicit Entries(const wchar_t* name) noexcept
        : name_(name), flags_(name == LOCALE_NAME_USER_DEFAULT ? 0 : LOCALE_NOUSEROVERRIDE)
    {
    }

    [[nodiscard]] std::u16string text(LCTYPE type) const
    {
        wchar_t value[128];
        const int units = GetLocaleInfoEx(name_, type | flags_, value, static_cast<int>(std::size(value)));
        return units > 1 ? utf16({value, static_cast<std::size_t>(units - 1)}) : std::u16string();
    }

    [[nodiscard]] int number(LCTYPE type, int otherwise) const
    {
        DWORD value = 0;
        const int read = GetLocaleInfoEx(name_, type | flags_ | LOCALE_RETURN_NUMBER,
                                         reinterpret_cast<wchar_t*>(&value), sizeof value / sizeof(wchar_t));
        return read ? static_cast<int>(value) : otherwise;
    }

    [[nodiscard]] int twoDigitYearMax(int otherwise) const
    {
        DWORD year = 0;
        const bool read = GetCalendarInfoEx(name_, CAL_GREGORIAN, nullptr, CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER,
                                            nullptr, 0, &year) != 0;
        return read && year ? static_cast<int>(year) : otherwise;
    }

private:
    const wchar_t* name_;
    LCTYPE flags_;
};

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
    bool marked = false, quoted = false;
    for (const char16_t unit : system) {
        quoted ^= unit == u'\'';
        if (quoted)
            pattern += unit;
        else if (unit == u'H')
            pattern += u'h';
        else if (unit == u'm')
            pattern += u'n';
        else if (unit != u't')
            pattern += unit;
        else if (!marked)
            pattern += u"AM/PM";
        marked |= unit == u't' && !quoted;
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

void readNames(const Entries& entries, engine::Locale& locale)
{
    for (std::size_t month = 0; month < locale.months.size(); ++month) {
        locale.months[month] = entries.text(LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(month));
        locale.shortMonths[month] = entries.text(LOCALE_SABBREVMONTHNAME1 + static_cast<LCTYPE>(month));
    }
    // The system's first day is Monday, the locale's is Sunday.
    for (std::size_t day = 0; day < locale.days.size(); ++day) {
        const auto system = static_cast<LCTYPE>((day + 6) % 7);
        locale.days[day] = entries.text(LOCALE_SDAYNAME1 + system);
        locale.shortDays[day] = entries.text(LOCALE_SABBREVDAYNAME1 + system);
    }
}

// The words of the named formats are the language's, which the system does not tell: Portuguese or English.
engine::Locale withWords(const Entries& entries)
{
    const bool portuguese = entries.text(LOCALE_SISO639LANGNAME) == u"pt";
    return portuguese ? engine::ptBr() : engine::enUs();
}

void readNumbers(const Entries& entries, engine::Locale& locale)
{
    locale.decimal = entries.text(LOCALE_SDECIMAL);
    locale.grouping = entries.text(LOCALE_STHOUSAND);
    locale.negativeSign = entries.text(LOCALE_SNEGATIVESIGN);
    locale.numberNegative = entries.number(LOCALE_INEGNUMBER, locale.numberNegative);
    locale.leadingZero = entries.number(LOCALE_ILZERO, 1) != 0;
    locale.currencySymbol = entries.text(LOCALE_SCURRENCY);
    locale.currencyPositive = entries.number(LOCALE_ICURRENCY, locale.currencyPositive);
    locale.currencyNegative = entries.number(LOCALE_INEGCURR, locale.currencyNegative);
}

void readDates(const Entries& entries, engine::Locale& locale)
{
    locale.shortDate = datePattern(entries.text(LOCALE_SSHORTDATE));
    locale.longDate = datePattern(entries.text(LOCALE_SLONGDATE));
    locale.longTime = timePattern(entries.text(LOCALE_STIMEFORMAT));
    locale.shortTime = timePattern(entries.text(LOCALE_SSHORTTIME));
    locale.dateOrder = orderOf(locale.shortDate);
    locale.dateSeparator = entries.text(LOCALE_SDATE);
    locale.timeSeparator = entries.text(LOCALE_STIME);
    locale.am = entries.text(LOCALE_S1159);
    locale.pm = entries.text(LOCALE_S2359);
    locale.firstDayOfWeek = (entries.number(LOCALE_IFIRSTDAYOFWEEK, 6) + 1) % 7 + 1;
    locale.twoDigitYearMax = entries.twoDigitYearMax(locale.twoDigitYearMax);
}

} // namespace

engine::Locale systemLocale(const wchar_t* name)
{
    const Entries entries(name);
    engine::Locale locale = withWords(entries);
    locale.name = entries.text(LOCALE_SNAME);
    readNumbers(entries, locale);
    readDates(entries, locale);
    readNames(entries, locale);
    return locale;
}

// A window that is never shown: changed settings are told to top-level windows only.
class LocaleSource::Listener final : WindowHandler {
public:
    explicit Listener(bool& read) noexcept
        : read_(read), window_(createBound(messageClass(), *this, 0, WS_POPUP, RECT{0, 0, 0, 0}, nullptr))
    {
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener()
    {
        if (window_) {
            unbind(window_);
            DestroyWindow(window_);
        }
    }

private:
    LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) override
    {
        if (message == WM_SETTINGCHANGE)
            read_ = false;
        return DefWindowProcW(window, message, first, second);
    }
    void unbound() override { window_ = nullptr; }

    bool& read_;
    HWND window_;
};

LocaleSource::LocaleSource() = default;
LocaleSource::~LocaleSource() = default;

void LocaleSource::listen()
{
    if (!listener_)
        listener_ = std::make_unique<Listener>(read_);
}

const engine::Locale& LocaleSource::locale() const
{
    if (!read_) {
        locale_ = systemLocale(LOCALE_NAME_USER_DEFAULT);
        read_ = true;
    }
    return locale_;
}

} // namespace vela::win32
