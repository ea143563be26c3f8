// Decimal digits of doubles.
#include "engine/text/decimal.h"

#include "engine/error.h"
#include "engine/text/exact_decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace vela::engine {
namespace {

constexpr int significantDigits = 15;
constexpr std::uint64_t tenToTheFifteenth = 1'000'000'000'000'000;

void trimZeros(Decimal& decimal) noexcept
{
    while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0')
        --decimal.count;
    if (decimal.count == 0)
        decimal.point = 0;
}

void takeWhole(Decimal& decimal, std::uint64_t whole, int fractionDigits) noexcept
{
    const auto end = std::to_chars(decimal.digits.data(), decimal.digits.data() + decimal.digits.size(), whole).ptr;
    decimal.count = static_cast<int>(end - decimal.digits.data());
    decimal.point = decimal.count - fractionDigits;
    trimZeros(decimal);
}

// As a whole number of 15 digits and the power of ten that makes it one.
void takeRounded(Decimal& decimal, double magnitude) noexcept
{
    int scale = significantDigits - 1 - static_cast<int>(std::floor(std::log10(magnitude)));
    std::uint64_t whole = scaledExactly(magnitude, scale);
    if (whole > tenToTheFifteenth) { // the logarithm was just below a power of ten
        whole = scaledExactly(magnitude, --scale);
    } else if (whole <= tenToTheFifteenth / 10) { // or just above one, or the number is one
        const std::uint64_t finer = scaledExactly(magnitude, scale + 1);
        if (finer < tenToTheFifteenth) {
            whole = finer;
            ++scale;
        }
    }
    takeWhole(decimal, whole, scale);
}

} // namespace

Decimal decimalOf(double number)
{
    if (!std::isfinite(number))
        raise(error_number::overflow);
    Decimal decimal;
    const double magnitude = std::fabs(number);
    if (magnitude == 0.0)
        return decimal;
    decimal.negative = number < 0;
    takeRounded(decimal, magnitude);
    return decimal;
}

void roundTo(Decimal& decimal, int kept) noexcept
{
    if (kept >= decimal.count)
        return;
    if (kept < 0) {
        decimal.count = 0;
        trimZeros(decimal);
        return;
    }
    const bool up = decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.count = kept;
    if (up) {
        while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '9')
            --decimal.count;
        if (decimal.count == 0) {
            decimal.digits[0] = '1';
            decimal.count = 1;
            ++decimal.point;
            return;
        }
        ++decimal.digits[static_cast<std::size_t>(decimal.count - 1)];
    }
    trimZeros(decimal);
}

} // namespace vela::engine
