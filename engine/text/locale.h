// A user's locale as a value: separators, date order and names. Nothing here asks the system.
#pragma once

#include <array>
#include <string>

namespace vela::engine {

enum class DateOrder { dayMonthYear, monthDayYear, yearMonthDay };

struct Locale {
    std::u16string name;           // "pt-BR"
    std::u16string decimal;        // ","
    std::u16string grouping;       // "."
    std::u16string currencySymbol; // "R$"
    std::u16string negativeSign = u"-";
    int currencyPositive = 0; // the system's number: 0 "$1", 1 "1$", 2 "$ 1", 3 "1 $"
    int currencyNegative = 0; // the system's number, 0 to 15: 0 "($1)", 1 "-$1", 9 "-$ 1"
    int numberNegative = 1;   // the system's number: 0 "(1)", 1 "-1", 2 "- 1", 3 "1-", 4 "1 -"
    bool leadingZero = true;  // "0,5" rather than ",5"
    DateOrder dateOrder = DateOrder::dayMonthYear;
    std::u16string dateSeparator = u"/";
    std::u16string timeSeparator = u":";
    std::u16string shortDate; // in pattern letters: "dd/mm/yyyy"
    std::u16string longDate;  // "dddd, d 'de' mmmm 'de' yyyy" as the system keeps it
    std::u16string longTime;  // "hh:nn:ss" (pt-BR), "h:nn:ss AM/PM" (en-US)
    std::u16string shortTime; // "hh:nn"
    std::u16string am = u"AM";
    std::u16string pm = u"PM";
    std::array<std::u16string, 12> months;      // "janeiro"
    std::array<std::u16string, 12> shortMonths; // "jan"
    std::array<std::u16string, 7> days;         // Sunday first: "domingo"
    std::array<std::u16string, 7> shortDays;    // "dom"
    std::u16string trueText, falseText;         // of the named format True/False
    std::u16string yesText, noText;
    std::u16string onText, offText;
    int firstDayOfWeek = 1;     // 1 Sunday .. 7 Saturday
    int twoDigitYearMax = 2029; // the last year of the window of two-digit years
};

// The two fixed locales: same values on every machine.
[[nodiscard]] const Locale& ptBr();
[[nodiscard]] const Locale& enUs();

} // namespace vela::engine
