// Known differences of dates and texts: reading, letters, names and "@" marks.
#include "engine/calendar_date.h"
#include "engine/conversions.h"
#include "tests/differential/known_differences.h"
#include "tests/differential/requests.h"

#include <algorithm>
#include <cstdlib>

namespace vela::differential {
namespace {

using engine::Mark;
using engine::NamedNumber;
using engine::PatternKind;

bool isDatePattern(const Request& request)
{
    return isKind(request, PatternKind::date);
}
engine::Date today()
{
    return {systemToday()};
}
bool isNumericText(const Request& request)
{
    return engine::isNumeric(request.asked.text, request.locale);
}
bool isDateText(const Request& request)
{
    return engine::isDate(request.asked.text, request.locale, today());
}
bool readsDate(const Request& request)
{
    return asks(request, Question::readDate) || asks(request, Question::formatText);
}

// The text comes back as it stands, or is refused.
void isNoDate(Request& request)
{
    request.asked.pattern.clear();
    if (asks(request, Question::readDate)) {
        request.asked.text = u"no date";
    }
}

void generalForm(Request& request)
{
    request.asked.pattern.clear();
}

std::u16string inSmallLetters(std::u16string text)
{
    std::ranges::transform(text, text.begin(),
                           [](char16_t unit) { return unit >= u'A' && unit <= u'Z' ? char16_t(unit | 0x20) : unit; });
    return text;
}

bool hasRun(const Request& request, std::u16string_view letters)
{
    return inSmallLetters(request.asked.pattern).find(letters) != std::u16string::npos;
}

// --- names ---

bool usesShortNames(const Request& request, const Outcome&)
{
    return isPortuguese(request) &&
           (hasMark(request, Mark::monthShort) || hasMark(request, Mark::dayShort) || readsDate(request));
}

void shortNamesWithPoints(Request& request)
{
    for (auto& name : request.locale.shortMonths) {
        name += u'.';
    }
    for (auto& name : request.locale.shortDays) {
        name += u'.';
    }
}

bool usesLongDate(const Request& request, const Outcome&)
{
    return isPortuguese(request) && (hasMark(request, Mark::longDate) || hasMark(request, Mark::mediumDate));
}

void quotesAreLiterals(Request& request)
{
    request.locale.longDate = u"dddd, d ''''d'e''' mmmm ''''d'e''' yyyy";
}

bool usesMediumDate(const Request& request, const Outcome&)
{
    return hasMark(request, Mark::mediumDate);
}

void mediumIsLong(Request& request)
{
    std::u16string letters = inSmallLetters(request.asked.pattern);
    std::size_t at = 0;
    for (const PlainCharacter plain : plainCharacters(letters)) { // what is not plain becomes another letter
        for (; at < plain.position; ++at) {
            letters[at] = u'x';
        }
        ++at;
    }
    if (letters.find(u"ddddddd") == std::u16string::npos) {
        request.asked.pattern = u"dddddd";
    }
    for (std::size_t run = 0; (run = letters.find(u"ddddddd", run)) != std::u16string::npos; run += 8) {
        letters.replace(run, 7, u"dddddd\"\"");
        request.asked.pattern.replace(run, 7, u"dddddd\"\"");
    }
}

// --- letters ---

bool usesWeekdays(const Request& request, const Outcome&)
{
    return formattedMoment(request) && (hasMark(request, Mark::weekday) || hasMark(request, Mark::weekOfYear));
}

std::u16string quoted(int number)
{
    std::u16string text = u"\"";
    for (const char digit : std::to_string(number)) {
        text.push_back(static_cast<char16_t>(digit));
    }
    return text + u"\"";
}

void countsWeekdaysItsOwnWay(Request& request)
{
    const engine::Moment moment = *formattedMoment(request);
    const engine::CivilDate date = moment.date;
    const int day = engine::weekday(date) - 6; // Sunday is 1, and Sunday the library's first day 6
    const int week = engine::dayOfYear(date) / 7 + 1;
    auto plain = plainCharacters(request.asked.pattern);
    std::u16string result;
    std::size_t copied = 0;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if ((plain[i].unit | 0x20) != u'w') {
            continue;
        }
        const bool pair = i + 1 < plain.size() && (plain[i + 1].unit | 0x20) == u'w' &&
                          plain[i + 1].position == plain[i].position + 1;
        result += request.asked.pattern.substr(copied, plain[i].position - copied) + quoted(pair ? week : day);
        i += pair ? 1 : 0;
        copied = plain[i].position + 1;
    }
    request.asked.pattern = result + request.asked.pattern.substr(copied);
    request.asked.question = Question::formatDate;
    request.asked.number = engine::makeDate(moment.date, moment.time).serial;
    // What follows must not settle the kind of the pattern now.
    plain = plainCharacters(request.asked.pattern);
    for (auto character = plain.rbegin(); character != plain.rend(); ++character) {
        if (std::u16string_view(u"0#.@&<>!").find(character->unit) != std::u16string_view::npos) {
            request.asked.pattern.insert(character->position, u"\\");
        }
    }
}

bool hasMonthsAndHours(const Request& request, const Outcome&)
{
    return formattedMoment(request) && countMarks(request, Mark::hour, Mark::hourZero) > 0 && hasRun(request, u"m");
}

// The library's minutes: the first short run of "m" behind an hour that has no day in between.
void takesFirstMonthForMinutes(Request& request)
{
    const engine::Moment moment = *formattedMoment(request);
    const std::u16string letters = inSmallLetters(request.asked.pattern);
    const auto plain = plainCharacters(request.asked.pattern);
    std::u16string result;
    std::size_t copied = 0;
    bool hours = false, written = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const std::size_t position = plain[i].position;
        if (letters.compare(position, 5, u"am/pm") == 0 || letters.compare(position, 4, u"ampm") == 0) {
            i += letters[position + 2] == u'/' ? 4 : 3;
            continue;
        }
        hours = letters[position] == u'h' || (hours && letters[position] != u'd');
        const std::size_t end = std::min({letters.find_first_not_of(u'm', position), position + 4, letters.size()});
        const std::size_t run = end - position;
        if (run == 1 || run == 2) {
            const bool minutes = hours && !written;
            written = written || minutes;
            result += request.asked.pattern.substr(copied, position - copied);
            const int number = minutes ? moment.time.minute : moment.date.month;
            result += (run == 2 && number < 10 ? u"\\0" : u"") + quoted(number);
            copied = position + run;
        }
        i += run > 1 ? run - 1 : 0;
    }
    request.asked.pattern = result + request.asked.pattern.substr(copied);
}

int halves(const Request& request)
{
    return countMarks(request, Mark::halfOfLocale, Mark::letterLower);
}

bool mixesHours(const Request& request, const Outcome&)
{
    const auto moment = formattedMoment(request);
    return moment && halves(request) > 0 && (moment->time.hour == 0 || moment->time.hour > 12) &&
           countMarks(request, Mark::hour, Mark::hourZero) > 0;
}

bool hasTwoHalves(const Request& request, const Outcome& theirs)
{
    return isDatePattern(request) && halves(request) > 1 && isRefusal(theirs, Refusal::invalidArgument);
}

bool hasLongRun(const Request& request, const Outcome&)
{
    return isDatePattern(request) && (hasRun(request, u"mmmmm") || hasRun(request, u"yyyyy"));
}

bool hasHalfAmongDigits(const Request& request, const Outcome&)
{
    return (isKind(request, PatternKind::number) || isKind(request, PatternKind::text)) &&
           (hasRun(request, u"am/pm") || hasRun(request, u"ampm") || hasRun(request, u"a/p") ||
            hasRun(request, u"ttttt"));
}

bool isLongTimeOfMidnight(const Request& request, const Outcome&)
{
    const auto moment = formattedMoment(request);
    return moment && hasMark(request, Mark::longTime) && moment->time == engine::TimeOfDay{};
}

void noTimeAtMidnight(Request& request)
{
    const engine::CivilDate date = formattedMoment(request)->date;
    const std::size_t run = inSmallLetters(request.asked.pattern).find(u"ttttt");
    if (run == std::u16string::npos) {
        request.asked.pattern = u"\"\"";
    } else {
        request.asked.pattern.replace(run, 5, u"\"\"");
    }
    request.asked.question = Question::formatDate;
    request.asked.number = engine::makeDate(date).serial;
}

// --- values of another kind ---

bool isDateWithNumberPattern(const Request& request, const Outcome&)
{
    return asks(request, Question::formatDate) &&
           (isKind(request, PatternKind::number) || compiled(request).named == NamedNumber::general);
}

bool isNumberTextWithDatePattern(const Request& request, const Outcome&)
{
    return asks(request, Question::formatText) && isDatePattern(request) && !isDateText(request);
}

void readsPlainNumber(Request& request)
{
    std::string text(request.asked.text.begin(), request.asked.text.end());
    std::ranges::replace(text, 'd', 'e');
    std::ranges::replace(text, 'D', 'e');
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (!text.empty() && end == text.c_str() + text.size() && engine::momentOf({number})) {
        request.asked.question = Question::formatDate;
        request.asked.number = number;
    } else {
        generalForm(request);
    }
}

bool isDateTextWithNumberPattern(const Request& request, const Outcome&)
{
    return asks(request, Question::formatText) && !isDatePattern(request) && !isKind(request, PatternKind::text) &&
           !isNumericText(request) && isDateText(request);
}

bool isEmptyTextWithDatePattern(const Request& request, const Outcome&)
{
    return asks(request, Question::formatText) && isDatePattern(request) && request.asked.text.empty();
}

void emptyIsDateZero(Request& request)
{
    request.asked.question = Question::formatDate;
    request.asked.number = 0;
}

bool isTextWithGeneralNumber(const Request& request, const Outcome&)
{
    return asks(request, Question::formatText) && compiled(request).named == NamedNumber::general;
}

// --- reading ---

bool hasTwoDigitYear(const Request& request, const Outcome&)
{
    return readsDate(request);
}

// A number that the library cuts to 16 bits.
bool hasLongNumber(const Request& request, const Outcome&)
{
    const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
    const std::u16string& text = request.asked.text;
    return readsDate(request) && std::ranges::search_n(text, 5, true, {}, isDigit).begin() != text.end();
}

bool isPointedDate(const Request& request, const Outcome&)
{
    return readsDate(request) && std::ranges::count(request.asked.text, u'.') == 2 && isDateText(request);
}

bool isBeyondTheCalendar(const Request& request, const Outcome& theirs)
{
    return asks(request, Question::readDate) && isRefusal(theirs, Refusal::typeMismatch) &&
           isRefusal(engineOutcome(request), Refusal::overflow);
}

bool isSerialBeyondTheCalendar(const Request& request, const Outcome& theirs)
{
    return isRefusal(theirs, Refusal::invalidArgument) && isRefusal(engineOutcome(request), Refusal::overflow) &&
           !engine::momentOf({request.asked.number});
}

std::size_t nameAt(const std::u16string& text, std::size_t at, const engine::Locale& locale)
{
    const auto matches = [&](std::u16string_view name) {
        return inSmallLetters(text.substr(at, name.size())) == inSmallLetters(std::u16string(name));
    };
    for (const auto* names : {&locale.months, &locale.shortMonths}) {
        for (const auto& name : *names) {
            if (matches(name)) {
                return name.size();
            }
        }
    }
    return matches(u"am") || matches(u"pm") ? 2 : 0;
}

// "3a 5": the letter that is no part of a name.
std::size_t loneHalf(const Request& request)
{
    const std::u16string& text = request.asked.text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t name = nameAt(text, i, request.locale);
        if (name > 0) {
            i += name - 1;
        } else if ((text[i] | 0x20) == u'a' || (text[i] | 0x20) == u'p') {
            return i;
        }
    }
    return std::u16string::npos;
}

bool swallowsNext(const Request& request, const Outcome&)
{
    const std::size_t half = loneHalf(request);
    return readsDate(request) && half != std::u16string::npos && half + 1 < request.asked.text.size();
}

void swallowNext(Request& request)
{
    std::u16string text = request.asked.text;
    text[loneHalf(request) + 1] = u' ';
    if (asks(request, Question::readDate) || engine::isDate(text, request.locale, today())) {
        request.asked.text = text;
    } else {
        isNoDate(request);
    }
}

bool readsBehindTheEnd(const Request& request, const Outcome&)
{
    return readsDate(request) && !request.asked.text.empty() && loneHalf(request) == request.asked.text.size() - 1;
}

// --- "@" marks ---

bool keepsLetters(const Request& request, const Outcome&)
{
    return isKind(request, PatternKind::text);
}

void smallLettersByDefault(Request& request)
{
    const auto section = compiled(request).sections[0];
    if (!section.upper || section.lower) {
        request.asked.pattern.insert(0, u"<");
    }
}

bool fillsFromLeft(const Request& request, const Outcome&)
{
    return isKind(request, PatternKind::text) && compiled(request).sections[0].fromLeft;
}

void ignoresFillOrder(Request& request)
{
    const bool upper = compiled(request).sections[0].upper;
    for (const PlainCharacter plain : plainCharacters(request.asked.pattern)) {
        if (plain.unit == u'!') {
            request.asked.pattern[plain.position] = upper ? u'>' : u'<';
        }
    }
}

bool hasAccents(const Request& request, const Outcome&)
{
    return isKind(request, PatternKind::text) &&
           std::ranges::any_of(request.asked.text, [](char16_t unit) { return unit >= 0x80; });
}

constexpr KnownDifference differences[] = {
    {"two-digit years", "30 to 99 are 1930 to 1999 in the fixed locales; the system here turns at 2049",
     hasTwoDigitYear, [](Request& request) { request.locale.twoDigitYearMax = 2049; }},
    {"dates with points", "read when they cannot be times; the library refuses", isPointedDate, isNoDate},
    {"letter behind the end", "the library reads on behind a text that ends with a or p", readsBehindTheEnd, nullptr},
    {"letter for half a day", "a or p; the library skips the character behind it", swallowsNext, swallowNext},
    {"years beyond the calendar", "an overflow; the library calls it a mismatch", isBeyondTheCalendar, isNoDate},
    {"numbers beyond 16 bits", "no year; the library cuts them", hasLongNumber, nullptr},
    {"date with a number pattern", "formats the serial; the library gives the general date", isDateWithNumberPattern,
     generalForm},
    {"number text with a date pattern", "read in the locale; the library reads it as program text",
     isNumberTextWithDatePattern, readsPlainNumber},
    {"date text with a number pattern", "the date's serial; the library leaves the text", isDateTextWithNumberPattern,
     generalForm},
    {"text as General Number", "read as a number or date; the library leaves the text", isTextWithGeneralNumber,
     generalForm},
    {"empty text with a date pattern", "no date, so unchanged; the library takes it for day zero",
     isEmptyTextWithDatePattern, emptyIsDateZero},
    {"long runs", "five m or y are four and one; the library takes another mark or refuses", hasLongRun, nullptr},
    {"half marks among digits", "literals in a number pattern; the library takes them for a date's", hasHalfAmongDigits,
     nullptr},
    {"minutes behind an hour", "right behind, as documented; the library takes the first \"m\" behind it",
     hasMonthsAndHours, takesFirstMonthForMinutes},
    {"two half marks", "the library corrupts the mark of the hour", hasTwoHalves, nullptr},
    {"hours with a half mark", "twelve hours in the whole pattern; the library changes one mark, and none for AM/PM",
     mixesHours, nullptr},
    {"medium date", "dd-mmm-yy; the library takes the long date", usesMediumDate, mediumIsLong},
    {"long date", "the library takes apostrophes and what is between them for letters of the date", usesLongDate,
     quotesAreLiterals},
    {"long time of midnight", "00:00:00; the library writes nothing", isLongTimeOfMidnight, noTimeAtMidnight},
    {"days and weeks by number", "from Sunday, 1 January in week 1; the library subtracts the locale's first day",
     usesWeekdays, countsWeekdaysItsOwnWay},
    {"short names", "without a point in the fixed locale", usesShortNames, shortNamesWithPoints},
    {"serials beyond the calendar", "an overflow; the library calls it an invalid argument", isSerialBeyondTheCalendar,
     nullptr},
    {"fill order", "\"!\" fills from the left; the library ignores it", fillsFromLeft, ignoresFillOrder},
    {"letter case of accents", "mapped; the library knows the basic letters alone", hasAccents, nullptr},
    {"letter case by default", "kept; the library writes small letters", keepsLetters, smallLettersByDefault},
};

} // namespace

std::span<const KnownDifference> dateDifferences()
{
    return differences;
}

} // namespace vela::differential
