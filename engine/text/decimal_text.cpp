// Digits of whole numbers.
#include "engine/text/decimal_text.h"

#include <algorithm>

namespace vela::engine {

std::u16string decimalText(std::int64_t number, std::size_t leastDigits)
{
    const std::string digits = std::to_string(number);
    const std::size_t sign = number < 0 ? 1 : 0;
    std::u16string text(digits.begin(), digits.end());
    text.insert(sign, leastDigits - std::min(leastDigits, digits.size() - sign), u'0');
    return text;
}

} // namespace vela::engine
