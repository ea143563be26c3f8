// Reads a whole text as a number in a locale, digit by digit, without allocating.
#pragma once

#include "engine/locale.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vela::engine {

// The powers of ten that a double holds exactly: one division or multiplication by them rounds once.
inline constexpr std::array<double, 23> exactPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                         1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                         1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Decimal digits as they come: the number is the digits kept times ten to the power `exponent`.
class DigitCollector {
public:
    void addWhole(char16_t digit) noexcept { add(digit, 1); }
    void addFraction(char16_t digit) noexcept { add(digit, 0); }
    void scale(std::int64_t powerOfTen) noexcept { exponent_ += powerOfTen; }
    [[nodiscard]] bool isZero() const noexcept { return count_ == 0; }
    // Nothing when the number is beyond a double.
    [[nodiscard]] std::optional<double> toDouble(bool negative) const noexcept;
    // Ten-thousandths, halves to even on the digits; nothing beyond 64 bits.
    [[nodiscard]] std::optional<std::int64_t> toTenThousandths(bool negative) const noexcept;

private:
    // A double is settled by its first 768 digits; of those beyond only whether one is not zero matters.
    static constexpr int capacity = 800;

    void add(char16_t digit, int dropped) noexcept;
    [[nodiscard]] std::optional<double> toDoubleSlowly() const noexcept;

    std::array<char, capacity> digits_;
    int count_ = 0;
    bool sticky_ = false;
    std::uint64_t leading_ = 0; // the first 18 digits
    std::int64_t exponent_ = 0;
};

enum class ScanVerdict { number, notNumber, overflow };

// The value of a text that is a number as a whole: blanks, signs and the currency symbol before and behind, parentheses
// for negatives, grouping symbols anywhere behind the first digit, exponents with e or d, "&H" and "&O".
class NumberScanner {
public:
    NumberScanner(std::u16string_view text, const Locale& locale) noexcept;

    [[nodiscard]] bool scan() noexcept;
    [[nodiscard]] ScanVerdict toDouble(double& value) const noexcept;
    [[nodiscard]] ScanVerdict toTenThousandths(std::int64_t& value) const noexcept;

private:
    [[nodiscard]] bool take(std::u16string_view symbol) noexcept;
    [[nodiscard]] bool takeBlanks() noexcept;
    [[nodiscard]] bool takeLeading() noexcept;
    [[nodiscard]] bool takeTrailing() noexcept;
    [[nodiscard]] bool takeRadix() noexcept;
    [[nodiscard]] bool scanRadixDigits(int bitsADigit) noexcept;
    [[nodiscard]] bool scanDecimalDigits() noexcept;
    [[nodiscard]] bool scanExponent() noexcept;

    std::u16string_view text_;
    const Locale& locale_;
    std::size_t at_ = 0;
    DigitCollector digits_;
    bool leadingPlus_ = false, leadingMinus_ = false, parenthesis_ = false, currency_ = false;
    bool negative_ = false;
    bool radix_ = false;
    bool radixOverflow_ = false;
    std::uint64_t radixValue_ = 0;
};

} // namespace vela::engine
