// Numbers to texts: the general form and the form with fixed decimals.
#include "engine/text/number_text.h"

#include "engine/error.h"
#include "engine/text/decimal.h"

#include <cstdlib>

namespace vela::engine {
namespace {

constexpr int significantDigits = 15;
constexpr int mostPlainDecimals = 15;
constexpr int mostDecimals = 255;

void putScientific(const Decimal& decimal, const Locale& locale, TextWriter& writer)
{
    writer.put(static_cast<char16_t>(decimal.digits[0]));
    if (decimal.count > 1)
        writer.put(locale.decimal);
    for (int i = 1; i < decimal.count; ++i)
        writer.put(static_cast<char16_t>(decimal.digits[static_cast<std::size_t>(i)]));
    const int exponent = decimal.point - 1;
    writer.put(u'E');
    writer.put(exponent < 0 ? u'-' : u'+');
    writer.number(std::abs(exponent), 2);
}

void putWhole(const Decimal& decimal, TextWriter& writer)
{
    for (int place = decimal.point - 1; place >= 0; --place)
        writer.put(static_cast<char16_t>(decimal.at(place)));
}

void putPlain(const Decimal& decimal, const Locale& locale, TextWriter& writer)
{
    if (decimal.point > 0)
        putWhole(decimal, writer);
    else
        writer.put(u'0');
    const int decimals = decimal.count - decimal.point;
    if (decimals > 0 && !decimal.isZero()) {
        writer.put(locale.decimal);
        for (int place = -1; place >= -decimals; --place)
            writer.put(static_cast<char16_t>(decimal.at(place)));
    }
}

void putSignBefore(const Locale& locale, TextWriter& writer)
{
    switch (locale.numberNegative) {
    case 0: return writer.put(u'(');
    case 3:
    case 4: return;
    default: writer.put(locale.negativeSign);
    }
    if (locale.numberNegative == 2)
        writer.put(u' ');
}

void putSignAfter(const Locale& locale, TextWriter& writer)
{
    if (locale.numberNegative == 0)
        return writer.put(u')');
    if (locale.numberNegative == 4)
        writer.put(u' ');
    if (locale.numberNegative >= 3)
        writer.put(locale.negativeSign);
}

void putFixed(const Decimal& decimal, int decimals, const Locale& locale, TextWriter& writer)
{
    if (decimal.point > 0)
        putWhole(decimal, writer);
    else if (locale.leadingZero || decimals == 0)
        writer.put(u'0');
    if (decimals > 0)
        writer.put(locale.decimal);
    for (int place = -1; place >= -decimals; --place)
        writer.put(static_cast<char16_t>(decimal.at(place)));
}

} // namespace

void putNumber(double number, const Locale& locale, TextWriter& writer)
{
    const Decimal decimal = decimalOf(number);
    if (decimal.negative)
        writer.put(locale.negativeSign);
    const bool plain = decimal.point <= significantDigits && decimal.count - decimal.point <= mostPlainDecimals;
    plain ? putPlain(decimal, locale, writer) : putScientific(decimal, locale, writer);
}

std::u16string numberToText(double number, const Locale& locale)
{
    std::u16string text;
    TextWriter writer(text);
    putNumber(number, locale, writer);
    writer.flush();
    return text;
}

std::u16string formatNumber(double number, int decimals, const Locale& locale)
{
    if (decimals < 0 || decimals > mostDecimals)
        raise(error_number::invalidCall);
    Decimal decimal = decimalOf(number);
    roundTo(decimal, decimal.point + decimals);
    std::u16string text;
    TextWriter writer(text);
    if (decimal.negative)
        putSignBefore(locale, writer);
    putFixed(decimal, decimals, locale, writer);
    if (decimal.negative)
        putSignAfter(locale, writer);
    writer.flush();
    return text;
}

} // namespace vela::engine
