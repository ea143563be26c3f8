// A sign, at most 15 digits, single grouping and decimal symbols.
#include "engine/text/plain_number.h"

#include "engine/text/characters.h"
#include "engine/text/number_scanner.h"

namespace vela::engine {

double PlainNumber::value() const noexcept
{
    const double magnitude = static_cast<double>(digits) / exactPowersOfTen[decimals];
    return negative ? -magnitude : magnitude;
}

std::optional<PlainNumber> readPlainNumber(std::u16string_view text, const Locale& locale) noexcept
{
    constexpr std::size_t mostUnits = 19; // as many digits as 64 bits hold
    constexpr std::uint64_t tooManyDigits = 1'000'000'000'000'000;
    if (text.size() > mostUnits || locale.decimal.size() != 1 || locale.grouping.size() != 1 ||
        locale.negativeSign.size() != 1 || locale.decimal == locale.grouping)
        return {};
    const char16_t decimal = locale.decimal[0], grouping = locale.grouping[0];
    PlainNumber number;
    number.negative = text.starts_with(locale.negativeSign[0]);
    if (number.negative)
        text.remove_prefix(1);
    if (text.empty() || !isDigit(text.front()))
        return {};
    std::size_t step = 0;
    for (const char16_t unit : text) {
        if (isDigit(unit)) {
            number.digits = number.digits * 10 + (unit - u'0');
            number.decimals += step;
            ++number.behindGrouping;
        } else if (unit == decimal && step == 0) {
            step = 1;
        } else if (unit == grouping) {
            number.behindGrouping = 0;
        } else {
            return {};
        }
    }
    if (number.digits >= tooManyDigits)
        return {};
    return number;
}

} // namespace vela::engine
