// The decimal form of a double that texts are made from: its 15 significant digits, never its binary noise.
#pragma once

#include <array>

namespace vela::engine {

// The value is 0.d1d2d3... times ten to the power `point`; zero has no digits. 12.5 -> "125", point 2.
struct Decimal {
    std::array<char, 20> digits; // '0' to '9', the first and the last of the `count` in use not '0'
    int count = 0;
    int point = 0;
    bool negative = false; // of the number itself: stays when rounding leaves zero

    [[nodiscard]] bool isZero() const noexcept { return count == 0; }
    // The digit at a place of the number: 0 the units, 1 the tens, -1 the tenths; '0' where none is held.
    [[nodiscard]] char at(int place) const noexcept
    {
        const int index = point - 1 - place;
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
    }
};

// Raises 6 for what is no finite number.
[[nodiscard]] Decimal decimalOf(double number);
// Keeps the first `kept` digits, halves away from zero: 2.5 to one digit is 3. May become zero, or carry: 9.96, 2
// -> 10.
void roundTo(Decimal& decimal, int kept) noexcept;

} // namespace vela::engine
