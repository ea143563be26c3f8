// Where the engine answers otherwise than this version of the library, and what its fault makes of a request.
#include "tests/differential/known_differences.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern_compiler.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace vela::differential {
namespace {

using engine::Mark;
using engine::NamedNumber;
using engine::PatternKind;

// Of a pattern, outside quotes and not escaped.
struct PlainCharacter {
    std::size_t position = 0, section = 0;
    char16_t unit = 0;
};

std::vector<PlainCharacter> plainCharacters(const std::u16string& pattern)
{
    std::vector<PlainCharacter> result;
    std::size_t section = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        switch (pattern[i]) {
        case u'\\': ++i; break;
        case u'"': i = std::min(pattern.find(u'"', i + 1), pattern.size()); break;
        case u';': ++section; break;
        default: result.push_back({i, section, pattern[i]});
        }
    }
    return result;
}

engine::Pattern::Compiled compiled(const Request& request)
{
    return engine::compilePattern(request.asked.pattern);
}

bool asks(const Request& request, Question question)
{
    return request.asked.question == question;
}

bool isKind(const Request& request, engine::PatternKind kind)
{
    return request.asked.question >= Question::formatNumber && request.asked.question <= Question::formatText &&
           compiled(request).kind == kind;
}

int countMarks(const Request& request, Mark first, Mark last)
{
    const auto pattern = compiled(request);
    return static_cast<int>(std::ranges::count_if(
        pattern.tokens, [&](const engine::Token& token) { return token.mark >= first && token.mark <= last; }));
}

std::optional<double> formattedNumber(const Request& request)
{
    if (isKind(request, PatternKind::number) || isKind(request, PatternKind::unknown)) {
        if (asks(request, Question::formatNumber))
            return request.asked.number;
        if (asks(request, Question::formatText))
            return engine::tryParseDouble(request.asked.text, request.locale);
    }
    return std::nullopt;
}

// Which section formats a number.
std::size_t sectionIndexOf(const engine::Pattern::Compiled& pattern, double number)
{
    const std::size_t index = number < 0 ? 1 : number == 0 ? 2 : 0;
    return pattern.sections[index].written ? index : 0;
}

engine::Section sectionFor(const Request& request)
{
    const auto pattern = compiled(request);
    return pattern.sections[sectionIndexOf(pattern, *formattedNumber(request))];
}

void setNumber(Request& request, double number)
{
    request.asked.question = Question::formatNumber;
    request.asked.number = number;
}

std::optional<engine::Moment> formattedMoment(const Request& request)
{
    if (!isKind(request, PatternKind::date))
        return std::nullopt;
    if (asks(request, Question::formatText)) {
        const auto date = engine::tryParseDate(request.asked.text, request.locale, {systemToday()});
        const auto number = engine::tryParseDouble(request.asked.text, request.locale);
        return date ? engine::momentOf(*date) : number ? engine::momentOf({*number}) : std::nullopt;
    }
    return engine::momentOf({request.asked.number});
}

bool isDatePattern(const Request& request)
{
    return isKind(request, PatternKind::date);
}
bool readsDate(const Request& request)
{
    return asks(request, Question::readDate) || asks(request, Question::formatText);
}

// The text comes back as it stands, or is refused; a number is written as one.
void isNoDate(Request& request)
{
    request.asked.pattern.clear();
    if (asks(request, Question::readDate))
        request.asked.text = u"no date";
}

// "AM/PM" is written without turning the hours to twelve.
void halfIsText(Request& request)
{
    const bool morning = formattedMoment(request)->time.hour < 12;
    const std::size_t at = request.asked.pattern.find(u"AM/PM");
    if (at != std::u16string::npos)
        request.asked.pattern.replace(at, 5, morning ? u"\"AM\"" : u"\"PM\"");
}

// The first "m" or "mm" behind an hour is a minute's, however far behind.
void monthsAreMinutes(Request& request)
{
    std::u16string& pattern = request.asked.pattern;
    bool hours = false;
    for (const PlainCharacter plain : plainCharacters(pattern)) {
        hours = hours || plain.unit == u'h' || plain.unit == u'H';
        const auto isMonth = [&](std::size_t at) { return at < pattern.size() && (pattern[at] | 0x20) == u'm'; };
        if (!hours || !isMonth(plain.position) || isMonth(plain.position - 1))
            continue;
        const std::size_t length = pattern.find_first_not_of(u"mM", plain.position) - plain.position;
        if (const std::size_t run = std::min(length, pattern.size() - plain.position); run <= 2) {
            pattern.replace(plain.position, run, run, u'n');
            return;
        }
    }
}

// As the library reads it with "/" for the points.
bool isReadWithPoints(const Request& request)
{
    Case slashed = request.asked;
    std::ranges::replace(slashed.text, u'.', u'/');
    return asks(request, Question::readDate) && std::ranges::count(request.asked.text, u'.') == 2 &&
           agree(engineOutcome(request), systemOutcome(slashed));
}

constexpr std::u16string_view noForm = u"'\uFFFF'";

bool isPointedZero(const Request& request)
{
    const std::u16string& text = request.asked.text;
    return asks(request, Question::readDate) && std::ranges::count(text, u'.') == 1 &&
           text.find_first_not_of(u"0.") == std::u16string::npos && text.front() == u'0' && text.back() == u'0' &&
           engineOutcome(request) == Outcome(Refusal::typeMismatch);
}

void smallLettersByDefault(Request& request)
{
    const auto section = compiled(request).sections[0];
    if (!section.upper || section.lower)
        request.asked.pattern.insert(0, u"<");
}

constexpr char16_t hidden = 0xE000; // the private characters have no case

bool isAccented(char16_t unit)
{
    return unit >= 0x80 && unit < hidden;
}

// Characters beyond the basic ones keep their case.
void keepsAccents(Request& request)
{
    Request without = request;
    for (char16_t& unit : without.asked.text)
        unit = isAccented(unit) ? static_cast<char16_t>(hidden + unit) : unit;
    smallLettersByDefault(without);
    Outcome answer = engineOutcome(without);
    if (auto* const text = std::get_if<std::u16string>(&answer))
        for (char16_t& unit : *text)
            unit = unit >= hidden ? static_cast<char16_t>(unit - hidden) : unit;
    request.answer = answer;
}

bool isNumberPattern(const Request& request)
{
    return isKind(request, PatternKind::number);
}
constexpr bool isDigitMark(char16_t unit)
{
    return unit == u'0' || unit == u'#';
}

// The library writes numbers as C does; the decimal symbol becomes the locale's only where there is no exponent.
std::u16string libraryText(double number, const engine::Locale& locale)
{
    char narrow[40];
    std::snprintf(narrow, sizeof narrow, "%.15G", number);
    std::u16string text(narrow, narrow + std::char_traits<char>::length(narrow));
    const std::size_t point = text.find(u'.');
    if (text.find(u'E') == std::u16string::npos && point != std::u16string::npos)
        text.replace(point, 1, locale.decimal);
    return text;
}

// The engine's own rule, over the digits that C writes: an exponent where 15 whole digits or 15 decimals do not do.
std::u16string ruleText(double number, const engine::Locale& locale)
{
    char narrow[40];
    std::snprintf(narrow, sizeof narrow, "%.14E", std::fabs(number));
    std::string digits(narrow, 16);
    digits.erase(1, 1);
    digits.resize(digits.find_last_not_of('0') + 1);
    const int count = static_cast<int>(digits.size()), power = std::atoi(narrow + 17);
    const std::u16string all(digits.begin(), digits.end()), sign(number < 0 ? 1 : 0, u'-');
    if (power > 14 || count - 1 - power > 15) {
        const std::u16string exponent(narrow + 16, narrow + std::char_traits<char>::length(narrow));
        return sign + all.substr(0, 1) + (count > 1 ? locale.decimal : u"") + all.substr(1) + exponent;
    }
    const std::size_t whole = static_cast<std::size_t>(std::max(power + 1, 0));
    std::u16string plain = std::u16string(static_cast<std::size_t>(std::max(-power - 1, 0)), u'0') + all;
    plain.resize(std::max(plain.size(), whole), u'0');
    return sign + (whole > 0 ? plain.substr(0, whole) : u"0") +
           (plain.size() > whole ? locale.decimal + plain.substr(whole) : u"");
}

// What the library's text of the number is written as, once the engine has written its own.
bool writesGeneral(const Request& request)
{
    Request ruled = request;
    ruled.asked.text = ruleText(request.asked.number, request.locale);
    if (isKind(request, PatternKind::text))
        ruled.asked.question = Question::formatText;
    else
        ruled.answer = ruled.asked.text;
    return (asks(request, Question::writeNumber) ||
            (asks(request, Question::formatNumber) &&
             (isKind(request, PatternKind::general) || isKind(request, PatternKind::text)))) &&
           engineOutcome(request) == engineOutcome(ruled);
}

void writesAsC(Request& request)
{
    request.asked.text = libraryText(request.asked.number, request.locale);
    if (isKind(request, PatternKind::text))
        request.asked.question = Question::formatText;
    else
        request.answer = request.asked.text;
}

bool readsBackExponent(const Request& request)
{
    return asks(request, Question::formatNumber) && formattedNumber(request) && request.locale.grouping == u"." &&
           libraryText(request.asked.number, request.locale).find(u'E') != std::u16string::npos;
}

void pointIsGrouping(Request& request)
{
    std::u16string text = libraryText(request.asked.number, request.locale);
    std::erase(text, u'.');
    request.asked.number = engine::toDouble(text, request.locale);
}

void signAtFirstMark(Request& request)
{
    setNumber(request, -*formattedNumber(request));
    for (const PlainCharacter plain : plainCharacters(request.asked.pattern)) {
        if (plain.section == 0 && (isDigitMark(plain.unit) || plain.unit == u'.')) {
            request.asked.pattern.insert(plain.position, u"\\-");
            return;
        }
    }
}

bool roundsUpFromNothing(const Request& request)
{
    if (!isNumberPattern(request) || !formattedNumber(request))
        return false;
    const engine::Section section = sectionFor(request);
    const double value = std::fabs(*formattedNumber(request)) * (section.percent ? 100 : 1);
    return !section.exponent && section.fraction == 0 && value < 1 && value >= 0.4999999;
}

// Behind the zeros of an exponent "#" is a digit mark again: an empty quotation keeps it from the exponent.
void exponentEndsAtHash(Request& request)
{
    std::u16string& pattern = request.asked.pattern;
    for (std::size_t at = 0; at + 1 < pattern.size(); ++at) {
        const bool exponent =
            (pattern[at] == u'e' || pattern[at] == u'E') && (pattern[at + 1] == u'+' || pattern[at + 1] == u'-');
        const std::size_t zeros = exponent ? pattern.find_first_not_of(u'0', at + 2) : std::u16string::npos;
        if (zeros != std::u16string::npos && pattern[zeros] == u'#')
            pattern.insert(zeros, u"\"\"");
    }
}

// Commas behind the last digit mark group, as all others do.
void dividingCommasGroup(Request& request)
{
    const std::size_t section = sectionIndexOf(compiled(request), *formattedNumber(request));
    auto plain = plainCharacters(request.asked.pattern);
    std::erase_if(plain, [&](PlainCharacter each) { return each.section != section; });
    for (auto comma = plain.rbegin(); comma != plain.rend(); ++comma)
        if (comma->unit == u',')
            request.asked.pattern.erase(comma->position, 1);
    const auto first = std::ranges::find_if(plain, [](PlainCharacter each) { return isDigitMark(each.unit); });
    if (first != plain.end())
        request.asked.pattern.insert(first->position, u"#,");
}

constexpr KnownDifference differences[] = {
    {"two-digit years", "30 to 99 are 1930 to 1999 in the fixed locales; the library turns at 2049",
     [](const Request& request) { return readsDate(request) && request.locale.twoDigitYearMax != 2049; },
     [](Request& request) { request.locale.twoDigitYearMax = 2049; }},
    {"forms of the locale", "read as the locale writes them; the library reads numbers and names alone",
     [](const Request& request) { return readsDate(request) && request.locale.shortDate != noForm; },
     [](Request& request) { request.locale.shortDate = request.locale.longTime = noForm; }},
    {"points of the locale", "date separators where the locale writes them; times for the library",
     [](const Request& request) { return readsDate(request) && request.locale.dateSeparator.starts_with(u'.'); },
     [](Request& request) { request.locale.dateSeparator = u"/"; }},
    {"dates with points", "read as with \"/\" when they cannot be times; the library refuses", isReadWithPoints,
     isNoDate},
    {"pointed zero", "the number; the library reads midnight", isPointedZero,
     [](Request& request) { request.answer = 0.0; }},
    {"years beyond the calendar", "an overflow; the library calls it a mismatch",
     [](const Request& request) {
         return asks(request, Question::readDate) && engineOutcome(request) == Outcome(Refusal::overflow);
     },
     isNoDate},
    {"numbers beyond the calendar", "an overflow; the library writes the number",
     [](const Request& request) {
         return asks(request, Question::formatNumber) && isDatePattern(request) &&
                engineOutcome(request) == Outcome(Refusal::overflow);
     },
     isNoDate},
    {"hours with AM/PM", "twelve hours; the library leaves them as they are",
     [](const Request& request) {
         return formattedMoment(request) && countMarks(request, Mark::halfUpper, Mark::halfUpper) > 0;
     },
     halfIsText},
    {"months behind hours", "minutes only right behind the hour; any later \"m\" for the library", isDatePattern,
     monthsAreMinutes},
    {"letter case of accents", "mapped; the library knows the basic letters alone",
     [](const Request& request) {
         return asks(request, Question::formatText) && isKind(request, PatternKind::text) &&
                std::ranges::any_of(request.asked.text, isAccented);
     },
     keepsAccents},
    {"letter case by default", "kept; the library writes small letters",
     [](const Request& request) { return isKind(request, PatternKind::text); }, smallLettersByDefault},
    {"exponent texts",
     "an exponent only where 15 decimals do not do, with the locale's symbol; the library writes as C does",
     writesGeneral, writesAsC},
    {"exponent text read back", "the library formats from its own exponent text, whose point it takes for grouping",
     readsBackExponent, pointIsGrouping},
    {"sign before literals", "documented: in front of the whole; the library writes it at the first digit mark",
     [](const Request& request) {
         const auto number = formattedNumber(request);
         const auto pattern = compiled(request);
         return number && *number < 0 && pattern.source == pattern.text && !pattern.sections[1].written;
     },
     signAtFirstMark},
    {"half of the last place", "halves round away from zero; the library loses a carry into an empty number",
     roundsUpFromNothing, [](Request& request) { setNumber(request, *formattedNumber(request) * 0.1); }},
    {"marks of an exponent", "\"#\" is a place of the exponent; the library counts it to the number's digits",
     isNumberPattern, exponentEndsAtHash},
    {"commas that divide", "documented to divide by 1000; the library groups",
     [](const Request& request) {
         return isNumberPattern(request) && formattedNumber(request) && sectionFor(request).thousands > 0;
     },
     dividingCommasGroup},
    {"limits of currency", "held; the library refuses them",
     [](const Request& request) {
         constexpr long long most = std::numeric_limits<long long>::max();
         const Outcome ours = engineOutcome(request);
         return asks(request, Question::readCurrency) &&
                (ours == Outcome(most) || ours == Outcome(-most) || ours == Outcome(-most - 1));
     },
     [](Request& request) { request.answer = Refusal::overflow; }},
    {"named format Currency", "the locale's own form of amounts; the library has one form for all",
     [](const Request& request) {
         return isKind(request, PatternKind::number) && compiled(request).named == NamedNumber::currency;
     },
     [](Request& request) { request.locale.currencyPositive = request.locale.currencyNegative = 0; }},
};

// The search for those behind one disagreement.
constexpr std::size_t mostTogether = 4;

using Found = std::vector<const KnownDifference*>;

bool search(const Request& request, const Outcome& theirs, std::size_t first, std::size_t depth, Found& found)
{
    for (std::size_t i = first; i < std::size(differences) && !request.answer; ++i) {
        if (!differences[i].applies(request))
            continue;
        found.push_back(&differences[i]);
        Request altered = request;
        differences[i].alter(altered);
        if (depth == 1 ? agree(engineOutcome(altered), theirs) : search(altered, theirs, i + 1, depth - 1, found))
            return true;
        found.pop_back();
    }
    return false;
}

} // namespace

Found explain(const Request& request, const Outcome& theirs)
{
    Found found;
    for (std::size_t depth = 1; depth <= mostTogether && found.empty(); ++depth)
        search(request, theirs, 0, depth, found);
    return found;
}

} // namespace vela::differential
