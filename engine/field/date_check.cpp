// The rules of the date check and the time check.
#include "engine/field/date_check.h"

#include "engine/text/characters.h"
#include "engine/text/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vela::engine {
namespace {

constexpr std::u16string_view incompleteMessage = u"Data não foi totalmente preenchida.";

// Day, month or year as its characters are gathered; 16 bits.
struct Part {
    int value = 0;
    std::size_t first = std::u16string_view::npos; // 0-based position of its first character
};

int decimalDigits(int value) noexcept
{
    int count = 1;
    for (value = std::abs(value); value >= 10; value /= 10)
        ++count;
    return count;
}

// A part with one more character, or the number of the error that its conversion raised.
struct Appended {
    int value = 0;
    int error = 0;
};

// The text of `value` followed by the unit, read as a number: 1 and "." are 1 where "." groups, 0 and "_" are none.
Appended appendOther(int value, char16_t unit, const Locale& locale) noexcept
{
    std::array<char, 8> narrow{};
    const auto end = std::to_chars(narrow.data(), narrow.data() + narrow.size(), value).ptr;
    std::array<char16_t, 9> digits{};
    const auto last = std::copy(narrow.data(), end, digits.begin());
    *last = unit;
    const auto length = static_cast<std::size_t>(last - digits.begin()) + 1;
    const auto number = tryParseDouble({digits.data(), length}, locale);
    if (!number)
        return {0, error_number::typeMismatch};
    const double rounded = std::nearbyint(*number);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() && rounded <= std::numeric_limits<std::int16_t>::max()))
        return {0, error_number::overflow};
    return {static_cast<int>(rounded), 0};
}

Appended append(int value, char16_t unit, const Locale& locale) noexcept
{
    if (!isDigit(unit) || value < 0)
        return appendOther(value, unit, locale);
    const int appended = value * 10 + (unit - u'0');
    return {appended, appended > std::numeric_limits<std::int16_t>::max() ? error_number::overflow : 0};
}

// Gathers the text's characters that stand under the three letters (small) of the format, whatever their case.
// Answers the number of an error, 0 when all were read. Runs of a letter ("yyyy") are gathered at one go.
int gather(std::u16string_view text, const DateCheckSettings& settings, const std::array<char16_t, 3>& letters,
           std::array<Part, 3>& parts) noexcept
{
    const auto format = settings.dateFormat;
    for (std::size_t i = 0; i < format.size();) {
        const char16_t letter = lowerLetter(format[i]);
        const std::size_t which = letter == letters[0] ? 0 : letter == letters[1] ? 1 : letter == letters[2] ? 2 : 3;
        if (which == parts.size()) {
            ++i;
            continue;
        }
        parts[which].first = std::min(parts[which].first, i);
        Appended gathered{parts[which].value, 0};
        for (; i < format.size() && lowerLetter(format[i]) == letter; ++i) {
            if (i < text.size())
                gathered = append(gathered.value, text[i], settings.locale);
            if (gathered.error != 0)
                return gathered.error;
        }
        parts[which].value = gathered.value;
    }
    return 0;
}

// Oddity: a prompt in the first position alone does not count as incomplete; counting it would refuse entries that
// forms accept today.
bool isIncomplete(std::u16string_view text, std::u16string_view promptChar) noexcept
{
    const auto found = promptChar.size() == 1 ? text.find(promptChar.front()) : text.find(promptChar);
    return found != std::u16string_view::npos && found >= 1;
}

DateVerdict refused(std::u16string_view message)
{
    DateVerdict verdict;
    verdict.accepted = false;
    verdict.message = message;
    return verdict;
}

DateVerdict failed(std::u16string_view message, int number)
{
    DateVerdict verdict = refused(message);
    verdict.failure = Error{number, std::u16string(errorDescription(number))};
    return verdict;
}

struct Rule {
    std::u16string_view message; // empty: no rule broken
    bool resetsDay = false;      // else the month
    int digits = 0;              // how many of its characters become prompts
};

// Oddity: 31/04 resets one digit of the month, 31/11 two; forms go on from the text that is left there.
Rule shortMonthRule(int day, int month) noexcept
{
    if (day <= 30)
        return {};
    switch (month) {
    case 4: return {u"Mês de abril só tem 30 dias", false, 1};
    case 6: return {u"Mês de junho só tem 30 dias", false, 1};
    case 9: return {u"Mês de setembro só tem 30 dias", false, 1};
    case 11: return {u"Mês de novembro só tem 30 dias", false, 2};
    default: return {};
    }
}

// Oddity: every year that divides by 4 is a leap year to the check, and day 0 and month 0 pass; saved dates such as
// 29/02/1900 would be refused.
Rule brokenRule(int day, int month, int year) noexcept
{
    const bool leap = (year & 3) == 0;
    if (month > 12)
        return {u"Mês informado incorretamente", false, decimalDigits(month)};
    if (day > 31)
        return {u"Dia informado incorretamente", true, decimalDigits(day)};
    if (month == 2 && leap && day >= 30)
        return {u"Mês de fevereiro não pode ter mais de 29 dias", true, decimalDigits(day)};
    if (month == 2 && !leap && day >= 29)
        return {u"Mês de fevereiro neste ano não pode ter mais de 28 dias", true, decimalDigits(day)};
    return shortMonthRule(day, month);
}

// "31/04/2024", first 3, 1 digit -> "31/_4/2024"
void putPromptsBack(std::u16string_view text, std::size_t first, int digits, std::u16string_view promptChar,
                    std::u16string& into)
{
    into.assign(text.substr(0, first));
    for (int i = 0; i < digits; ++i)
        into.append(promptChar);
    const std::size_t rest = first + static_cast<std::size_t>(digits);
    if (rest < text.size())
        into.append(text.substr(rest));
}

} // namespace

DateVerdict checkDate(std::u16string_view text, const DateCheckSettings& settings, std::u16string& corrected)
{
    if (text == settings.mask)
        return {};
    if (isIncomplete(text, settings.promptChar))
        return refused(incompleteMessage);
    std::array<Part, 3> parts; // day, month, year
    if (const int number = gather(text, settings, {u'd', u'm', u'y'}, parts))
        return failed(incompleteMessage, number);
    const auto& [day, month, year] = parts;
    const Rule rule = brokenRule(day.value, month.value, year.value);
    if (rule.message.empty())
        return {};
    DateVerdict verdict = refused(rule.message);
    verdict.corrected = true;
    putPromptsBack(text, (rule.resetsDay ? day : month).first, rule.digits, settings.promptChar, corrected);
    return verdict;
}

DateVerdict checkTime(std::u16string_view text, const DateCheckSettings& settings)
{
    if (text == settings.mask || isIncomplete(text, settings.promptChar))
        return refused({});
    std::array<Part, 3> parts; // hour, minute, second
    if (const int number = gather(text, settings, {u'h', u'n', u's'}, parts))
        return failed({}, number);
    const auto& [hour, minute, second] = parts;
    if (hour.value > 23 || minute.value > 59 || second.value >= 60)
        return refused({});
    return {};
}

} // namespace vela::engine
