// Known differences of numbers: reading, writing and digit marks.
#include "engine/conversions.h"
#include "engine/decimal.h"
#include "tests/differential/known_differences.h"
#include "tests/differential/requests.h"

#include <algorithm>
#include <cmath>

namespace vela::differential {
namespace {

using engine::Mark;
using engine::NamedNumber;
using engine::PatternKind;

bool isNumberPattern(const Request& request)
{
    return isKind(request, PatternKind::number);
}
bool readsNumber(const Request& request)
{
    return asks(request, Question::readNumber) || asks(request, Question::readCurrency);
}
constexpr bool isDigitMark(char16_t unit)
{
    return unit == u'0' || unit == u'#';
}

// --- the sign ---

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

// --- sections ---

void laterSectionsAreLiterals(Request& request)
{
    const auto plain = plainCharacters(request.asked.pattern);
    for (auto character = plain.rbegin(); character != plain.rend() && character->section > 0; ++character)
        request.asked.pattern.insert(character->position, u"\\");
}

// --- percent ---

bool percentStandsFirst(const Request& request, const Outcome&)
{
    if (!isNumberPattern(request))
        return false;
    for (const PlainCharacter plain : plainCharacters(request.asked.pattern)) {
        if (plain.section > 0 || isDigitMark(plain.unit) || plain.unit == u'.')
            return false;
        if (plain.unit == u'%')
            return true;
    }
    return false;
}

void firstPercentsAreLiterals(Request& request)
{
    std::size_t inserted = 0;
    for (const PlainCharacter plain : plainCharacters(request.asked.pattern)) {
        if (plain.section > 0 || isDigitMark(plain.unit) || plain.unit == u'.')
            return;
        if (plain.unit == u'%')
            request.asked.pattern.insert(plain.position + inserted++, u"\\");
    }
}

// --- rounding and lost digits ---

double scaled(const Request& request, const engine::Section& section)
{
    return std::fabs(*formattedNumber(request)) * (section.percent ? 100 : 1);
}

bool roundsUpFromNothing(const Request& request, const Outcome&)
{
    if (!isNumberPattern(request) || !formattedNumber(request))
        return false;
    const engine::Section section = sectionOf(compiled(request), *formattedNumber(request));
    const double value = scaled(request, section);
    return !section.exponent && section.fraction == 0 && value < 1 && value >= 0.4999999;
}

void roundsDown(Request& request)
{
    const double number = *formattedNumber(request);
    setNumber(request, number * 0.1);
}

bool losesWholeDigits(const Request& request, const Outcome&)
{
    if (!isNumberPattern(request) || !formattedNumber(request))
        return false;
    const engine::Section section = sectionOf(compiled(request), *formattedNumber(request));
    return section.whole == 0 && section.decimal && !section.exponent && scaled(request, section) >= 0.5;
}

// "0#" with 680, "0##" with 0: a last "#" has only a zero left to write.
bool losesLastZero(const Request& request, const Outcome&)
{
    if (!isNumberPattern(request) || !formattedNumber(request))
        return false;
    const auto pattern = compiled(request);
    const engine::Section section = sectionOf(pattern, *formattedNumber(request));
    const engine::Token* last = nullptr;
    for (const engine::Token& token : pattern.tokensOf(section)) {
        if (token.mark == Mark::decimal)
            break;
        last = token.mark == Mark::zero || token.mark == Mark::hash ? &token : last;
    }
    return last != nullptr && last->mark == Mark::hash && section.whole > 1 &&
           (last->length == 1 || scaled(request, section) < 1);
}

// A literal behind an exponent or a half mark extends the literal in front of it, into the marks between.
bool literalsRunTogether(const Request& request, const Outcome&)
{
    if (!formats(request))
        return false;
    const auto pattern = compiled(request);
    bool literalBefore = false, markBetween = false;
    for (const engine::Token& token : pattern.tokens) {
        const bool harmful =
            token.mark == Mark::exponent || (token.mark >= Mark::halfOfLocale && token.mark <= Mark::letterLower);
        if (token.mark == Mark::literal) {
            if (literalBefore && markBetween)
                return true;
            literalBefore = true;
            markBetween = false;
        } else if (harmful) {
            markBetween = true;
        } else {
            literalBefore = markBetween = false;
        }
    }
    return false;
}

// --- exponents in texts ---

bool writesExponentWithPoint(const Request& request, const Outcome&)
{
    if (!isPortuguese(request))
        return false;
    const bool writes = asks(request, Question::writeNumber) ||
                        (asks(request, Question::formatNumber) &&
                         (isKind(request, PatternKind::general) || isKind(request, PatternKind::text)));
    return writes && engine::numberToText(request.asked.number, request.locale).find(u'E') != std::u16string::npos;
}

bool readsBackExponentWithPoint(const Request& request, const Outcome&)
{
    return isPortuguese(request) && asks(request, Question::formatNumber) && formattedNumber(request) &&
           engine::numberToText(request.asked.number, request.locale).find(u'E') != std::u16string::npos;
}

void pointIsGrouping(Request& request)
{
    std::u16string text = engine::numberToText(request.asked.number, request.locale);
    std::erase(text, u',');
    request.asked.number = engine::toDouble(text, request.locale);
}

// --- reading ---

// One ten-thousandth, or what a double cannot hold of the amount.
bool isCurrencyThroughDouble(const Request& request, const Outcome& theirs)
{
    const auto* const amount = std::get_if<long long>(&theirs);
    const Outcome ours = engineOutcome(request);
    const auto* const own = std::get_if<long long>(&ours);
    if (own != nullptr && std::fabs(static_cast<double>(*own)) > 9.2233720368547e18 &&
        isRefusal(theirs, Refusal::overflow))
        return true;
    return asks(request, Question::readCurrency) && amount != nullptr && own != nullptr &&
           std::fabs(static_cast<double>(*amount - *own)) <= 1 + std::fabs(static_cast<double>(*own)) * 1e-15;
}

// --- named formats and fixed decimals ---

bool isBeyondFixed(const Request& request, const Outcome& theirs)
{
    if (!asks(request, Question::fixedDecimals))
        return false;
    const bool exponent = engine::numberToText(request.asked.number, request.locale).find(u'E') != std::u16string::npos;
    return (exponent && isRefusal(theirs, Refusal::typeMismatch)) ||
           (request.asked.decimals > 9 && isRefusal(theirs, Refusal::invalidArgument));
}

// The text comes back as it stands, or is refused.
void isNoNumber(Request& request)
{
    request.asked.pattern.clear();
    if (readsNumber(request))
        request.asked.text = u"no number";
}

constexpr KnownDifference differences[] = {
    {"exponent text read back", "the library formats from its own exponent text, whose point it takes for grouping",
     readsBackExponentWithPoint, pointIsGrouping},
    {"first section without marks", "each section has its own; the library takes the others for literals",
     [](const Request& request, const Outcome&) {
         const engine::Section first = compiled(request).sections[0];
         return isNumberPattern(request) && first.whole == 0 && first.fraction == 0 && !first.decimal;
     },
     laterSectionsAreLiterals},
    {"percent before the digits", "documented to multiply by 100 wherever it stands", percentStandsFirst,
     firstPercentsAreLiterals},
    {"sign before literals", "documented: in front of the whole; the library writes it at the first digit mark",
     [](const Request& request, const Outcome&) {
         const auto number = formattedNumber(request);
         const auto pattern = compiled(request);
         return number && *number < 0 && pattern.named == NamedNumber::none && !pattern.sections[1].written;
     },
     signAtFirstMark},
    {"half of the last place", "halves round away from zero; the library loses a carry into an empty number",
     roundsUpFromNothing, roundsDown},
    {"whole digits without a mark", "documented to be kept; the library writes them as fraction digits",
     losesWholeDigits, nullptr},
    {"last zero under one #", "the library takes a last digit 0 for the number zero", losesLastZero, nullptr},
    {"literals run together", "the library counts a literal behind an exponent or half mark to the one in front",
     literalsRunTogether, nullptr},
    {"zero with an exponent", "the library shifts the exponent of zero by the number of marks",
     [](const Request& request, const Outcome&) {
         return formattedNumber(request) == 0.0 && hasMark(request, Mark::exponent);
     },
     nullptr},
    {"exponent text", "the decimal symbol is the locale's; the library leaves the point in exponent texts",
     writesExponentWithPoint, [](Request& request) { request.locale.decimal = u"."; }},
    {"exponent letter d", "accepted as documented",
     [](const Request& request, const Outcome&) {
         return (readsNumber(request) || asks(request, Question::formatText)) &&
                request.asked.text.find_first_of(u"dD") != std::u16string::npos;
     },
     isNoNumber},
    {"amounts with an exponent", "accepted as any number; the library refuses",
     [](const Request& request, const Outcome&) {
         return !asks(request, Question::readDate) &&
                request.asked.text.find(request.locale.currencySymbol) != std::u16string::npos &&
                request.asked.text.find_first_of(u"eEdD&") != std::u16string::npos;
     },
     isNoNumber},
    {"exponent in front", "no number; the library takes digits behind an exponent for the number's",
     [](const Request& request, const Outcome&) {
         const std::size_t letter = request.asked.text.find_first_of(u"eE");
         return (readsNumber(request) || asks(request, Question::formatText)) && letter != std::u16string::npos &&
                request.asked.text.find_first_of(u"0123456789") > letter;
     },
     nullptr},
    {"zeros behind grouping", "not written; the library drops only those in front of the first grouping symbol",
     [](const Request& request, const Outcome&) {
         const std::u16string& text = request.asked.text;
         return asks(request, Question::formatText) && isNumberPattern(request) &&
                text.find(request.locale.grouping) < text.find_first_of(u"123456789");
     },
     nullptr},
    {"hexadecimal currency", "the library refuses it as too big",
     [](const Request& request, const Outcome& theirs) {
         return asks(request, Question::readCurrency) && isRefusal(theirs, Refusal::overflow) &&
                request.asked.text.find(u'&') != std::u16string::npos;
     },
     nullptr},
    {"currency", "exact on the decimal text; the library goes through a double", isCurrencyThroughDouble, nullptr},
    {"number texts of many digits", "a text becomes a double first; the library formats all its digits",
     [](const Request& request, const Outcome&) {
         const auto& text = request.asked.text;
         return asks(request, Question::formatText) && isNumberPattern(request) &&
                std::ranges::count_if(text, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; }) > 15;
     },
     nullptr},
    {"texts beyond a double", "no number, so unchanged; the library formats their digits",
     [](const Request& request, const Outcome&) {
         Request reading = request;
         reading.asked.question = Question::readNumber;
         return asks(request, Question::formatText) && isRefusal(engineOutcome(reading), Refusal::overflow);
     },
     nullptr},
    {"hexadecimal texts", "formatted in decimal; the library writes their digits as they are",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && isNumberPattern(request) &&
                request.asked.text.find(u'&') != std::u16string::npos;
     },
     nullptr},
    {"zero texts", "a text becomes a double first, and zero has no sign and no decimals",
     [](const Request& request, const Outcome&) {
         return asks(request, Question::formatText) && formattedNumber(request) == 0.0 &&
                request.asked.text.find_first_not_of(u"0 ") != std::u16string::npos;
     },
     nullptr},
    {"named format Currency", "the locale's own form of amounts; the library has one form for all",
     [](const Request& request, const Outcome&) {
         return formats(request) && compiled(request).named == NamedNumber::currency;
     },
     [](Request& request) { request.locale.currencyPositive = request.locale.currencyNegative = 0; }},
    {"fixed decimals", "any number, 0 to 255 places; the library refuses exponent texts and more than 9", isBeyondFixed,
     nullptr},
};

} // namespace

std::span<const KnownDifference> numberDifferences()
{
    return differences;
}

} // namespace vela::differential
