// The number field's texts: display on exit, symbol, sign, entry form and live re-format.
#include "engine/number_display.h"

#include "engine/conversions.h"

#include <algorithm>
#include <array>

namespace vela::engine {
namespace {

constexpr std::u16string_view wholePattern = u"###,###,###,###,###,###,###,###,###,###,###,###,###,###,##0";
constexpr std::size_t npos = std::u16string_view::npos;

constexpr bool isDigit(char16_t unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}

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

// Up to 15 digits, perhaps behind a sign: texts whose grouping needs no arithmetic.
bool isPlainWhole(std::u16string_view whole) noexcept
{
    if (whole.starts_with(u'-'))
        whole.remove_prefix(1);
    return !whole.empty() && whole.size() <= 15 && std::ranges::all_of(whole, isDigit);
}

// "-0012345" -> "-12.345"; a zero has no sign.
void appendPlainWhole(std::u16string_view whole, const Locale& locale, std::u16string& into)
{
    const bool negative = whole.starts_with(u'-');
    if (negative)
        whole.remove_prefix(1);
    whole.remove_prefix(std::min(whole.find_first_not_of(u'0'), whole.size() - 1));
    if (negative && whole != u"0")
        into += locale.negativeSign;
    const std::size_t lead = (whole.size() - 1) % 3 + 1;
    into.append(whole.substr(0, lead));
    for (std::size_t i = lead; i < whole.size(); i += 3) {
        into += locale.grouping;
        into.append(whole.substr(i, 3));
    }
}

// The whole part is read as a locale-independent leading number, so that "1.234" is a fraction and groups as "1".
void appendGrouped(std::u16string_view whole, std::u16string_view fraction, const Locale& locale, std::u16string& into)
{
    const bool plain = isPlainWhole(whole);
    const bool fractionCounts = fraction.find_first_of(u"123456789") != npos;
    if (whole.starts_with(u'-') && fractionCounts && leadingNumber(whole) == 0)
        into.push_back(u'-'); // "-0,5": the sign would be lost with the zero
    if (plain) {
        appendPlainWhole(whole, locale, into);
        return;
    }
    static const Pattern pattern(wholePattern);
    pattern.format(leadingNumber(whole), locale, into);
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

// The digits without symbol, the last two behind a ",": "12345" -> "123,45". Always two, whatever the number of
// places (with 3 places "12345" -> "12,45"); kept for the fields that are set up on it.
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

} // namespace

void displayNumber(std::u16string_view text, const NumberSettings& settings, std::u16string& into)
{
    into.clear();
    if (!isNumeric(text, settings.locale))
        return;
    if (settings.decimal.empty()) {
        into.assign(text);
        return;
    }
    const auto symbol = text.find(settings.decimal);
    const auto whole = text.substr(0, symbol);
    const auto typed = symbol == npos ? std::u16string_view() : text.substr(symbol + settings.decimal.size());
    if (settings.grouping.empty())
        into.assign(whole);
    else
        appendGrouped(whole, typed, settings.locale, into);
    const auto places = static_cast<std::size_t>(std::max(settings.decimals, 0));
    const bool padded = settings.insertZeros && places > typed.size();
    if (symbol != npos || padded)
        into.append(settings.decimal);
    into.append(typed);
    if (padded)
        into.append(places - typed.size(), u'0');
    if (settings.grouping == u",") // the decimal point turns with the rest; kept
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
    if (text.empty() || !isNumeric(text, settings.locale))
        return {};
    const Pattern* pattern = patterns.of(settings.decimal, settings.grouping, settings.decimals);
    if (pattern == nullptr)
        return {};
    const int fromEnd = static_cast<int>(text.size()) - caret;
    removeAll(settings.decimal, text, into);
    shiftPoint(into, settings.decimals);
    if (const auto number = tryParseDouble(into, settings.locale)) { // what is no number stays as it stands
        into.clear();
        pattern->format(*number, settings.locale, into);
    }
    if (into == text)
        return {};
    const int length = static_cast<int>(into.size());
    return std::clamp(length - fromEnd, 0, length);
}

} // namespace vela::engine
