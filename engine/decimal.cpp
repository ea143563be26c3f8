// Decimal digits of doubles.
#include "engine/decimal.h"

#include "engine/error.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

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

void takeDigits(Decimal& decimal, double magnitude, int digits) noexcept
{
    std::array<char, 96> text;
    const auto last =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, digits - 1).ptr;
    takeScientific(decimal, text.data(), last);
}

// Exactly half way between two decimals of 15 digits: 15048581.80078125.
bool isTie(double magnitude) noexcept
{
    std::array<char, 96> text;
    const auto last = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific,
                                    significantDigits + 40)
                          .ptr;
    const std::string_view digits(text.data(), static_cast<std::size_t>(last - text.data()));
    const std::string_view beyond = digits.substr(significantDigits + 1, 41); // behind "d." and 14 digits
    return beyond.front() == '5' && beyond.find_first_not_of('0', 1) == std::string_view::npos;
}

// More than 15 digits become 15; ties away from zero.
void takeRounded(Decimal& decimal, double magnitude) noexcept
{
    const bool sixteen = decimal.count == significantDigits + 1 && decimal.digits[significantDigits] == '5';
    if (sixteen && isTie(magnitude)) {
        roundTo(decimal, significantDigits);
    } else {
        takeDigits(decimal, magnitude, significantDigits);
    }
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
    if (decimal.count > significantDigits || magnitude < std::numeric_limits<double>::min()) {
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
