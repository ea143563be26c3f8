// Numbers through the digit marks of a pattern.

#include "engine/text/number_pattern.h"

#include <cstdlib>

namespace vela::engine {
namespace {

constexpr int percentPower = 2;
constexpr int thousandPower = 3;

const Section& sectionFor(const Pattern::Compiled& pattern, NumberCase chosen) noexcept
{
    const Section& section = pattern.sections[static_cast<std::size_t>(chosen)]; // in the order of the cases
    return section.written ? section : pattern.sections[0];
}

// Writes one section; digit marks to the left of the decimal symbol stand for the places of the number from
// `whole - 1` down to 0, and the first of them for all places above as well.
class NumberPatternWriter {
public:
    NumberPatternWriter(const Pattern::Compiled& pattern, const Section& section, const Decimal& number,
                        const Locale& locale, TextWriter& writer) noexcept
        : pattern_(pattern), section_(section), number_(number), locale_(locale), writer_(writer)
    {
        scale();
        wholeDigits_ = number_.isZero() || number_.point < 0 ? 0 : number_.point;
        nextMark_ = static_cast<int>(section.whole);
        fractionDigits_ = number_.isZero() ? 0 : std::max(0, number_.count - number_.point);
    }

    void write()
    {
        for (const Token& token : pattern_.tokensOf(section_)) {
            switch (token.mark) {
            case Mark::zero:
            case Mark::hash: putDigits(token); break;
            case Mark::decimal: putDecimal(); break;
            case Mark::exponent: putExponent(token); break;
            default: writer_.put(pattern_.literal(token));
            }
        }
    }

private:
    void scale() noexcept
    {
        if (number_.isZero())
            return;
        number_.point += (section_.percent ? percentPower : 0) - section_.thousands * thousandPower;
        const int whole = static_cast<int>(section_.whole), fraction = static_cast<int>(section_.fraction);
        if (!section_.exponent) {
            roundTo(number_, number_.point + fraction);
            return;
        }
        const int point = number_.point;
        roundTo(number_, whole + fraction);
        exponent_ = (number_.isZero() ? point : number_.point) - whole;
        number_.point = whole;
    }

    void putDigits(const Token& token)
    {
        const int length = static_cast<int>(token.length);
        if (afterDecimal_) {
            putFraction(length, token.mark == Mark::zero);
            return;
        }
        const bool first = nextMark_ == static_cast<int>(section_.whole);
        const int highest = first ? std::max(wholeDigits_, nextMark_) - 1 : nextMark_ - 1;
        nextMark_ -= length;
        putWhole(highest, nextMark_);
    }

    // The places from `highest` down to `lowest` that hold a digit or stand behind the first "0".
    void putWhole(int highest, int lowest)
    {
        const int leastWhole = static_cast<int>(section_.whole - section_.skipped);
        for (int place = std::min(highest, std::max(wholeDigits_, leastWhole) - 1); place >= lowest; --place) {
            writer_.put(static_cast<char16_t>(number_.at(place)));
            if (section_.grouping && place > 0 && place % 3 == 0)
                writer_.put(locale_.grouping);
        }
    }

    void putDecimal()
    {
        if (section_.whole == 0)
            putWhole(wholeDigits_ - 1, 0);
        writer_.put(locale_.decimal);
        afterDecimal_ = true;
    }

    // Zeros that "#" marks hold back appear at the next "0": "#.#/0" with 5 -> "5,/00".
    void putFraction(int length, bool zero)
    {
        const int count = std::min(length, fractionDigits_ - written_);
        for (int i = 0; i < count; ++i)
            writer_.put(static_cast<char16_t>(number_.at(-1 - written_ - i)));
        written_ += std::max(count, 0);
        heldBack_ += static_cast<std::size_t>(length - std::max(count, 0));
        if (zero) {
            writer_.repeat(u'0', heldBack_);
            heldBack_ = 0;
        }
    }

    void putExponent(const Token& token)
    {
        writer_.put(token.smallLetter ? u'e' : u'E');
        if (exponent_ < 0)
            writer_.put(u'-');
        else if (token.plusSign)
            writer_.put(u'+');
        const int magnitude = std::abs(exponent_);
        const int digits = magnitude < 10 ? 1 : magnitude < 100 ? 2 : 3;
        if (static_cast<int>(token.length) > digits)
            writer_.repeat(u'0', token.length - static_cast<std::uint32_t>(digits));
        writer_.number(magnitude, 1);
    }

    const Pattern::Compiled& pattern_;
    const Section& section_;
    Decimal number_;
    const Locale& locale_;
    TextWriter& writer_;
    int wholeDigits_ = 0;    // of the number
    int fractionDigits_ = 0; // of the number
    int nextMark_ = 0;       // whole marks not yet reached
    int written_ = 0;        // fraction digits
    std::size_t heldBack_ = 0;
    int exponent_ = 0;
    bool afterDecimal_ = false;
};

// The system's forms of a negative amount, by number; "n" is the amount, "$" the symbol.
constexpr std::array<std::u16string_view, 16> negativeAmounts{u"($n)", u"-$n",  u"$-n",   u"$n-",  u"(n$)", u"-n$",
                                                              u"n-$",  u"n$-",  u"-n $",  u"-$ n", u"n $-", u"$ n-",
                                                              u"$ -n", u"n- $", u"($ n)", u"(n $)"};
constexpr std::array<std::u16string_view, 4> positiveAmounts{u"$n", u"n$", u"$ n", u"n $"};

std::u16string_view amountForm(const Locale& locale, bool negative) noexcept
{
    return negative ? negativeAmounts[static_cast<std::size_t>(locale.currencyNegative & 15)]
                    : positiveAmounts[static_cast<std::size_t>(locale.currencyPositive & 3)];
}

void putAmount(const Pattern::Compiled& pattern, const Decimal& number, const Locale& locale, TextWriter& writer)
{
    for (const char16_t unit : amountForm(locale, number.negative)) {
        switch (unit) {
        case u'n': NumberPatternWriter(pattern, pattern.sections[0], number, locale, writer).write(); break;
        case u'$': writer.put(locale.currencySymbol); break;
        case u'-': writer.put(locale.negativeSign); break;
        default: writer.put(unit);
        }
    }
}

std::u16string_view truthText(NamedNumber named, bool truth, const Locale& locale) noexcept
{
    switch (named) {
    case NamedNumber::trueFalse: return truth ? locale.trueText : locale.falseText;
    case NamedNumber::yesNo: return truth ? locale.yesText : locale.noText;
    default: return truth ? locale.onText : locale.offText;
    }
}

} // namespace

void putNumberPattern(const Pattern::Compiled& pattern, Decimal number, NumberCase chosen, const Locale& locale,
                      TextWriter& writer)
{
    if (pattern.named == NamedNumber::currency) {
        putAmount(pattern, number, locale, writer);
        return;
    }
    if (pattern.named != NamedNumber::none) {
        writer.put(truthText(pattern.named, !number.isZero(), locale));
        return;
    }
    const Section& section = sectionFor(pattern, chosen);
    if (number.negative && !pattern.sections[1].written)
        writer.put(locale.negativeSign);
    NumberPatternWriter(pattern, section, number, locale, writer).write();
}

} // namespace vela::engine
