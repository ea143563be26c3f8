// Kinds of single characters, as numbers and dates are read.
#pragma once

#include <algorithm>
#include <string_view>

namespace vela::engine {

[[nodiscard]] constexpr bool isDigit(char32_t unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}
[[nodiscard]] constexpr bool isSmallLetter(char32_t unit) noexcept // of the basic alphabet, as the next two
{
    return unit >= u'a' && unit <= u'z';
}
[[nodiscard]] constexpr bool isCapital(char32_t unit) noexcept
{
    return unit >= u'A' && unit <= u'Z';
}
[[nodiscard]] constexpr bool isLetter(char32_t unit) noexcept
{
    return isSmallLetter(unit) || isCapital(unit);
}
[[nodiscard]] constexpr char16_t lowerLetter(char16_t unit) noexcept
{
    return isCapital(unit) ? static_cast<char16_t>(unit | 0x20) : unit;
}
// The letters of the basic alphabet count alike in both cases, all other units as they are.
[[nodiscard]] constexpr bool equalIgnoringCase(std::u16string_view left, std::u16string_view right) noexcept
{
    return std::ranges::equal(left, right, {}, lowerLetter, lowerLetter);
}
[[nodiscard]] constexpr bool isExponentLetter(char16_t unit) noexcept
{
    const char16_t lower = lowerLetter(unit);
    return lower == u'e' || lower == u'd';
}
[[nodiscard]] constexpr bool isBlank(char16_t unit) noexcept
{
    return (unit >= 0x09 && unit <= 0x0D) || unit == u' ' || unit == 0x85 || unit == 0xA0 || unit == 0x1680 ||
           (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F ||
           unit == 0x3000;
}
[[nodiscard]] constexpr std::u16string_view untilNul(std::u16string_view text) noexcept
{
    return text.substr(0, text.find(u'\0'));
}

} // namespace vela::engine
