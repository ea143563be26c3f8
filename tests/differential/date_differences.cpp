// Known differences of dates and texts: reading, letters, names and "@" marks.
#include "engine/calendar_date.h"
#include "engine/conversions.h"
#include "tests/differential/known_differences.h"
#include "tests/differential/requests.h"
#include "tests/differential/system_library.h"

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
    if (asks(request, Question::readDate))
        request.asked.text = u"no date";
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

void shortNamesWithPoints(Request& request)
{
    for (auto& name : request.locale.shortMonths)
        name += u'.';
    for (auto& name : request.locale.shortDays)
        name += u'.';
}

// --- letters ---

int halves(const Request& request)
{
    return countMarks(request, Mark::halfOfLocale, Mark::letterLower);
}

void noTimeAtMidnight(Request& request)
{
    const engine::CivilDate date = formattedMoment(request)->date;
    const std::size_t run = inSmallLetters(request.asked.pattern).find(u"ttttt");
    if (run == std::u16string::npos)
        request.asked.pattern = u"\"\"";
    else
        request.asked.pattern.replace(run, 5, u"\"\"");
    request.asked.question = Question::formatDate;
    request.asked.number = engine::makeDate(date).serial;
}

// --- values of another kind ---

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

// --- reading ---

// A number that the library cuts to 16 bits.
bool hasLongNumber(const Request& request, const Outcome&)
{
    const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
    const std::u16string& text = request.asked.text;
    return readsDate(request) && std::ranges::search_n(text, 5, true, {}, isDigit).begin() != text.end();
}

// --- "@" marks ---

void smallLettersByDefault(Request& request)
{
    const auto section = compiled(request).sections[0];
    if (!section.upper || section.lower)
        request.asked.pattern.insert(0, u"<");
}

void ignoresFillOrder(Request& request)
{
    const bool upper = compiled(request).sections[0].upper;
    for (const PlainCharacter plain : plainCharacters(request.asked.pattern))
        if (plain.unit == u'!')
            request.asked.pattern[plain.position] = upper ? u'>' : u'<';
}

constexpr KnownDifference differences[] = {
    {"two-digit years", "30 to 99 are 1930 to 1999 in the fixed locales; the system here turns at 2049",
     [](const Request& request, const Outcome&) { return readsDate(request); },
     [](Request& request) { request.locale.twoDigitYearMax = 2049; }},
    {"dates with points", "read when they cannot be times; the library refuses",
     [](const Request& request, const Outcome&) {
         return readsDate(request) && std::ranges::count(request.asked.text, u'.') == 2 && isDateText(request);
     },
     isNoDate},
    {"years beyond the calendar", "an overflow; the library calls it a mismatch",
     [](const Request& request, const Outcome& theirs) {
         return asks(request, Question::readDate) && isRefusal(theirs, Refusal::typeMismatch) &&
                isRefusal(engineOutcome(request), Refusal::overflow);
     },
     isNoDate},
    {"numbers beyond 16 bits", "no year; the library cuts them", hasLongNumber, nullptr},
    {"date with a number pattern", "formats the serial; the library gives the general date",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatDate) &&
                (isKind(request, PatternKind::number) || compiled(request).named == NamedNumber::general);
     },
     generalForm},
    {"number text with a date pattern", "read in the locale; the library reads it as program text",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && isDatePattern(request) && !isDateText(request);
     },
     readsPlainNumber},
    {"date text with a number pattern", "the date's serial; the library leaves the text",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && !isDatePattern(request) && !isKind(request, PatternKind::text) &&
                !isNumericText(request) && isDateText(request);
     },
     generalForm},
    {"text as General Number", "read as a number or date; the library leaves the text",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && compiled(request).named == NamedNumber::general;
     },
     generalForm},
    {"empty text with a date pattern", "no date, so unchanged; the library takes it for day zero",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && isDatePattern(request) && request.asked.text.empty();
     },
     [](Request& request) {
         request.asked.question = Question::formatDate;
         request.asked.number = 0;
     }},
    {"long runs", "five m or y are four and one; the library takes another mark or refuses",
     [](const Request& request, const Outcome&) {
         return isDatePattern(request) && (hasRun(request, u"mmmmm") || hasRun(request, u"yyyyy"));
     },
     nullptr},
    {"half marks among digits", "literals in a number pattern; the library takes them for a date's",
     [](const Request& request, const Outcome&) {
         return (isKind(request, PatternKind::number) || isKind(request, PatternKind::text)) &&
                (hasRun(request, u"am/pm") || hasRun(request, u"ampm") || hasRun(request, u"a/p") ||
                 hasRun(request, u"ttttt"));
     },
     nullptr},
    {"two half marks", "the library corrupts the mark of the hour",
     [](const Request& request, const Outcome& theirs) {
         return isDatePattern(request) && halves(request) > 1 && isRefusal(theirs, Refusal::invalidArgument);
     },
     nullptr},
    {"hours with a half mark", "twelve hours in the whole pattern; the library changes one mark, and none for AM/PM",
     [](const Request& request, const Outcome&) {
         const auto moment = formattedMoment(request);
         return moment && halves(request) > 0 && (moment->time.hour == 0 || moment->time.hour > 12) &&
                countMarks(request, Mark::hour, Mark::hourZero) > 0;
     },
     nullptr},
    {"medium date", "dd-mmm-yy; the library takes the long date",
     [](const Request& request, const Outcome&) { return hasMark(request, Mark::mediumDate); }, nullptr},
    {"long date", "the library takes apostrophes and what is between them for letters of the date",
     [](const Request& request, const Outcome&) {
         return isPortuguese(request) && (hasMark(request, Mark::longDate) || hasMark(request, Mark::mediumDate));
     },
     [](Request& request) { request.locale.longDate = u"dddd, d ''''d'e''' mmmm ''''d'e''' yyyy"; }},
    {"long time of midnight", "00:00:00; the library writes nothing",
     [](const Request& request, const Outcome&) {
         const auto moment = formattedMoment(request);
         return moment && hasMark(request, Mark::longTime) && moment->time == engine::TimeOfDay{};
     },
     noTimeAtMidnight},
    {"short names", "without a point in the fixed locale",
     [](const Request& request, const Outcome&) {
         return isPortuguese(request) &&
                (hasMark(request, Mark::monthShort) || hasMark(request, Mark::dayShort) || readsDate(request));
     },
     shortNamesWithPoints},
    {"serials beyond the calendar", "an overflow; the library calls it an invalid argument",
     [](const Request& request, const Outcome& theirs) {
         return isRefusal(theirs, Refusal::invalidArgument) && isRefusal(engineOutcome(request), Refusal::overflow) &&
                !engine::momentOf({request.asked.number});
     },
     nullptr},
    {"fill order", "\"!\" fills from the left; the library ignores it",
     [](const Request& request, const Outcome&) {
         return isKind(request, PatternKind::text) && compiled(request).sections[0].fromLeft;
     },
     ignoresFillOrder},
    {"letter case of accents", "mapped; the library knows the basic letters alone",
     [](const Request& request, const Outcome&) {
         return isKind(request, PatternKind::text) &&
                std::ranges::any_of(request.asked.text, [](char16_t unit) { return unit >= 0x80; });
     },
     nullptr},
    {"letter case by default", "kept; the library writes small letters",
     [](const Request& request, const Outcome&) { return isKind(request, PatternKind::text); }, smallLettersByDefault},
};

} // namespace

std::span<const KnownDifference> dateDifferences()
{
    return differences;
}

} // namespace vela::differential
