// The number field's texts: display on exit, symbol, sign, entry form and live re-format.
#include "engine/field/number_display.h"

#include "engine/text/characters.h"
#include "engine/text/conversions.h"
#include "engine/text/plain_number.h"
#include "engine/text/text_writer.h"

#include <algorithm>
#include <array>

namespace vela::engine {
namespace {

constexpr std::u16string_view wholePattern = u"#,##0";
constexpr std::size_t npos = std::u16string_view::npos;

void removeAll(std::u16string_view part, std::u16string_view text, std::u16string& into)
{
    into.clear();
    while (!part.empty()) {
        const auto found = text.find(part);
        if (found == npos)
            break;
        into.append(text.substr(0, found));
        text.remove_prefix(found + part.size());
    }
    into.append(text);
}

constexpr std::size_t countedDigits = 15; // of a double

std::size_t leadingDigits(std::u16string_view text) noexcept
{
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

bool isZero(std::u16string_view digits) noexcept
{
    return digits.find_first_not_of(u'0') == npos;
}

// "0012345" -> "12.345", "" -> "0"
void putWhole(std::u16string_view digits, std::u16string_view grouping, TextWriter& writer)
{
    digits.remove_prefix(std::min(digits.find_first_not_of(u'0'), digits.size()));
    if (digits.empty())
        writer.put(u'0');
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0)
            writer.put(grouping);
        writer.put(digits[i]);
    }
}

// "1.234.567", "-12.345": what the display, the live layout or the calculator's result has grouped already.
bool isGrouped(std::u16string_view whole, char16_t symbol) noexcept
{
    if (whole.starts_with(u'-') || whole.starts_with(u'+'))
        whole.remove_prefix(1);
    std::size_t digits = leadingDigits(whole);
    if (digits < 1 || digits > 3 || digits == whole.size())
        return false;
    for (whole.remove_prefix(digits); !whole.empty(); whole.remove_prefix(1 + digits)) {
        digits = leadingDigits(whole.substr(1));
        if (whole.front() != symbol || digits != 3)
            return false;
    }
    return true;
}

// Oddity: a whole part that is not grouped in threes is read up to what follows its first "." as a fraction; "1234.5"
// has to group as "1.234".
void putGrouped(std::u16string_view whole, std::u16string_view fraction, const Locale& locale, TextWriter& writer,
                std::u16string& into)
{
    const bool negative = whole.starts_with(u'-');
    const bool fractionHolds = fraction.find_first_of(u"123456789") != npos;
    const auto digits = whole.substr(negative ? 1 : 0);
    const bool plainSign = !negative || locale.negativeSign == u"-";
    if (plainSign && leadingDigits(digits) == digits.size() && digits.size() <= countedDigits) {
        if (negative && (fractionHolds || !isZero(digits)))
            writer.put(u'-'); // of "-0,5" too
        putWhole(digits, locale.grouping, writer);
        return;
    }
    const double number = leadingNumber(whole);
    if (negative && number == 0 && fractionHolds)
        writer.put(u'-'); // "-,5": the sign would be lost with the zero
    writer.flush();
    static const Pattern pattern(wholePattern);
    pattern.format(number, locale, into);
}

struct SymbolParts {
    std::u16string_view before;
    std::u16string_view after;
    bool split = false; // there is a ";"
};

SymbolParts symbolParts(std::u16string_view symbol) noexcept
{
    const auto separator = symbol.find(u';');
    if (separator == npos)
        return {symbol, {}, false};
    return {symbol.substr(0, separator), symbol.substr(separator + 1), true};
}

// Puts "," before the last two digits: "12345" -> "123,45".
// Oddity: the live layout always keeps two characters behind its comma; fields with another number of places are set up
// for it.
void shiftPoint(std::u16string& digits, int decimals)
{
    const auto places = static_cast<std::size_t>(std::max(decimals, 0));
    if (digits.size() < places)
        digits.insert(0, places - digits.size(), u'0');
    const std::size_t tail = std::min<std::size_t>(digits.size(), 2);
    std::array<char16_t, 2> last{};
    std::copy_n(digits.end() - static_cast<std::ptrdiff_t>(tail), tail, last.begin());
    digits.resize(digits.size() - places);
    digits.push_back(u',');
    digits.append(last.data(), tail);
}

std::u16string livePatternText(char16_t decimal, char16_t grouping, int decimals)
{
    std::u16string text = grouping == 0      ? u"###################0"
                          : grouping == u'.' ? u"###,###,###,###,###,##0"
                                             : u"###.###.###.###.###.##0";
    if (decimal != 0)
        text.push_back(decimal == u',' ? u'.' : u',');
    text.append(static_cast<std::size_t>(std::max(decimals, 0)), u'0');
    return text;
}

// The character of a symbol, 0 for none; nothing for a text that is no symbol.
std::optional<char16_t> symbolCharacter(std::u16string_view symbol) noexcept
{
    if (symbol.empty())
        return char16_t{0};
    if (symbol == u"." || symbol == u",")
        return symbol.front();
    return {};
}

// The text of an amount as a person keys it into a fixed-point field: its digits stand in their places before and
// behind the shifted point, whatever symbols are between them. "1.234,567" -> "12.345,67". False for other writings,
// and for settings whose pattern does more than group two places.
bool putKeyedAmount(std::u16string_view text, const NumberSettings& settings, std::u16string& into)
{
    const Locale& locale = settings.locale;
    if (settings.qtdCasasDec != 2 || settings.displayDecimal != u"," || settings.grouping == u"," ||
        locale.decimal != u"," || locale.grouping != u"." || locale.negativeSign != u"-")
        return false;
    const auto number = readPlainNumber(text, locale);
    if (!number || number->behindGrouping < 2)
        return false;
    std::array<char16_t, countedDigits> digits{};
    auto first = digits.end();
    for (auto rest = number->digits / 100; rest > 0; rest /= 10)
        *--first = static_cast<char16_t>(u'0' + rest % 10);
    into.clear();
    TextWriter writer(into);
    if (number->negative && number->digits > 0)
        writer.put(u'-');
    putWhole({first, digits.end()}, settings.grouping, writer);
    writer.put(u',');
    writer.number(static_cast<int>(number->digits % 100), 2);
    writer.flush();
    return true;
}

// Writes the text of the live re-format; false when this text is not re-formatted.
bool putLive(std::u16string_view text, const NumberSettings& settings, LivePattern& patterns, std::u16string& into)
{
    if (putKeyedAmount(text, settings, into))
        return true;
    if (text.empty() || !isNumeric(text, settings.locale))
        return false;
    const Pattern* pattern = patterns.of(settings.displayDecimal, settings.grouping, settings.qtdCasasDec);
    if (pattern == nullptr)
        return false;
    removeAll(settings.displayDecimal, text, into);
    shiftPoint(into, settings.qtdCasasDec);
    if (const auto number = tryParseDouble(into, settings.locale)) { // a text that is no number stays as it is
        into.clear();
        pattern->format(*number, settings.locale, into);
    }
    return true;
}

} // namespace

void displayNumber(std::u16string_view text, const NumberSettings& settings, std::u16string& into)
{
    into.clear();
    if (!isNumeric(text, settings.locale))
        return;
    if (settings.displayDecimal.empty()) {
        into.assign(text);
        return;
    }
    const auto symbol = text.find(settings.displayDecimal.front());
    const auto whole = text.substr(0, symbol);
    const auto typed = symbol == npos ? std::u16string_view() : text.substr(symbol + 1);
    TextWriter writer(into);
    if (settings.grouping.empty()) {
        writer.put(whole);
    } else if (isGrouped(whole, settings.grouping.front())) {
        std::u16string plain;
        removeAll(settings.grouping, whole, plain);
        putGrouped(plain, typed, settings.locale, writer, into);
    } else {
        putGrouped(whole, typed, settings.locale, writer, into);
    }
    const auto places = static_cast<std::size_t>(std::max(settings.qtdCasasDec, 0));
    const bool padded = settings.inserirZeros && places > typed.size();
    if (symbol != npos || padded)
        writer.put(settings.displayDecimal.front());
    writer.put(typed);
    if (padded)
        writer.repeat(u'0', places - typed.size());
    writer.flush();
    // Oddity: with "." for decimals and "," for grouping the decimal point turns into "," too; displays in use look
    // like that.
    if (settings.grouping == u",")
        std::ranges::replace(into, u'.', u',');
}

NumberSign currencySign(std::u16string_view text, const Locale& locale)
{
    const auto amount = toCurrency(text, locale).tenThousandths;
    return amount < 0 ? NumberSign::negative : amount > 0 ? NumberSign::positive : NumberSign::zero;
}

bool applySymbol(std::u16string_view text, std::u16string_view symbol, std::u16string& into)
{
    const auto parts = symbolParts(symbol);
    if (!parts.split && text.empty())
        return false;
    into.assign(parts.before);
    into.append(text);
    into.append(parts.after);
    return true;
}

// Oddity: with "." for decimals and for grouping the decimal point is lost; grouping is removed without looking at
// decimals.
void entryForm(std::u16string_view text, std::u16string_view symbol, std::u16string_view grouping, std::u16string& into)
{
    const auto parts = symbolParts(symbol);
    if (text.starts_with(parts.before))
        text.remove_prefix(parts.before.size());
    if (text.ends_with(parts.after))
        text.remove_suffix(parts.after.size());
    removeAll(grouping, text, into);
}

std::u16string numericTemplate(std::u16string_view decimal, int decimals)
{
    std::u16string text(u"0");
    text.append(decimal);
    text.append(static_cast<std::size_t>(std::max(decimals, 0)), u'0');
    return text;
}

const Pattern* LivePattern::of(std::u16string_view decimal, std::u16string_view grouping, int decimals)
{
    const auto decimalUnit = symbolCharacter(decimal);
    const auto groupingUnit = symbolCharacter(grouping);
    if (!decimalUnit || !groupingUnit)
        return nullptr;
    if (decimals_ != decimals || decimal_ != *decimalUnit || grouping_ != *groupingUnit) {
        pattern_ = Pattern(livePatternText(*decimalUnit, *groupingUnit, decimals));
        decimal_ = *decimalUnit;
        grouping_ = *groupingUnit;
        decimals_ = decimals;
    }
    return &pattern_;
}

std::optional<int> liveFormat(std::u16string_view text, int caret, const NumberSettings& settings,
                              LivePattern& patterns, std::u16string& into)
{
    const int fromEnd = static_cast<int>(text.size()) - caret;
    if (!putLive(text, settings, patterns, into))
        return {};
    if (into == text)
        return {};
    const int length = static_cast<int>(into.size());
    return std::clamp(length - fromEnd, 0, length);
}

} // namespace vela::engine
