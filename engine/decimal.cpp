// Decimal digits of doubles.
#include "engine/decimal.h"

#include "engine/error.h"
#include "engine/exact_decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vela::engine {
namespace {

constexpr int significantDigits = 15;

void trimZeros(Decimal& decimal) noexcept
{
    while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0') {
        --decimal.count;
    }
    if (decimal.count == 0) {
        decimal.point = 0;
    }
}

void takeWhole(Decimal& decimal, std::uint64_t whole, int fractionDigits) noexcept
{
    const auto end = std::to_chars(decimal.digits.data(), decimal.digits.data() + decimal.digits.size(), whole).ptr;
    decimal.count = static_cast<int>(end - decimal.digits.data());
    decimal.point = decimal.count - fractionDigits;
    trimZeros(decimal);
}

// Amounts with few decimals, without the general algorithm: a decimal of at most 15 digits that reads back as the
// number is its 15-digit form.
bool takeAmount(Decimal& decimal, double magnitude) noexcept
{
    static constexpr std::array<double, 3> scales{1.0, 100.0, 10000.0};
    for (std::size_t i = 0; i < scales.size(); ++i) {
        const double scaled = magnitude * scales[i];
        if (!(scaled < 1e15)) {
            return false;
        }
        const auto whole = static_cast<std::uint64_t>(scaled + 0.5);
        if (static_cast<double>(whole) / scales[i] == magnitude) {
            takeWhole(decimal, whole, static_cast<int>(i) * 2);
            return true;
        }
    }
    return false;
}

// From "d.ddde-12".
void takeScientific(Decimal& decimal, const char* first, const char* last) noexcept
{
    decimal.count = 0;
    for (; first != last && *first != 'e'; ++first) {
        if (*first != '.') {
            decimal.digits[static_cast<std::size_t>(decimal.count++)] = *first;
        }
    }
    int exponent = 0;
    if (first != last) {
        first += first[1] == '+' ? 2 : 1;
        std::from_chars(first, last, exponent);
    }
    decimal.point = exponent + 1;
}

std::uint64_t wholeOf(const Decimal& decimal) noexcept
{
    std::uint64_t whole = 0;
    for (int i = 0; i < decimal.count; ++i) {
        whole = whole * 10 + static_cast<std::uint64_t>(decimal.digits[static_cast<std::size_t>(i)] - '0');
    }
    return whole;
}

// More than 15 digits become 15; ties away from zero. A number and its shortest decimal lie on the same side of a
// half-way point, which would be the shorter decimal of the two if it stood between them; unless the shortest decimal
// is that point: 0.1000000000000005 stands for a number above or below it.
void takeRounded(Decimal& decimal, double magnitude) noexcept
{
    const bool halfWay = decimal.count == significantDigits + 1 && decimal.digits[significantDigits] == '5';
    if (halfWay && compareExactly(magnitude, wholeOf(decimal), decimal.point - decimal.count) < 0) {
        --decimal.count;
    } else {
        roundTo(decimal, significantDigits);
    }
}

// The shortest decimal of a denormalised number has fewer digits than the number itself shows: 5e-324 is
// 4.94065645841247e-324.
void takeDenormal(Decimal& decimal, double magnitude) noexcept
{
    int scale = significantDigits - decimal.point;
    std::uint64_t whole = scaledDenormal(magnitude, scale);
    if (whole < 100'000'000'000'000) { // a digit short: the shortest decimal was the next power of ten
        whole = scaledDenormal(magnitude, ++scale);
    }
    takeWhole(decimal, whole, scale);
}

} // namespace

Decimal decimalOf(double number)
{
    if (!std::isfinite(number)) {
        raise(error_number::overflow);
    }
    Decimal decimal;
    const double magnitude = std::fabs(number);
    if (magnitude == 0.0) {
        return decimal;
    }
    decimal.negative = number < 0;
    if (magnitude >= 1e-4 && takeAmount(decimal, magnitude)) {
        return decimal;
    }
    std::array<char, 32> text;
    const auto last =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific).ptr;
    takeScientific(decimal, text.data(), last);
    if (magnitude < std::numeric_limits<double>::min()) {
        takeDenormal(decimal, magnitude);
    } else if (decimal.count > significantDigits) {
        takeRounded(decimal, magnitude);
    }
    trimZeros(decimal);
    return decimal;
}

void roundTo(Decimal& decimal, int kept) noexcept
{
    if (kept >= decimal.count) {
        return;
    }
    if (kept < 0) {
        decimal.count = 0;
        trimZeros(decimal);
        return;
    }
    const bool up = decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.count = kept;
    if (up) {
        while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '9') {
            --decimal.count;
        }
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
