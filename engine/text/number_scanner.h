// Reads a whole text as a number in a locale, digit by digit, without allocating.
#pragma once

#include "engine/text/locale.h"

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

// The digits of "&H" and "&O" as they come; leading zeros do not count. 32 bits hold a negative number as well:
// FFFFFFFF is -1.
class RadixCollector {
public:
    explicit RadixCollector(int bitsADigit = 4) noexcept : bitsADigit_(bitsADigit) {}
    // False for what is no digit of the radix.
    [[nodiscard]] bool add(char16_t unit) noexcept;
    [[nodiscard]] bool overflows() const noexcept { return value_ > UINT32_MAX; }
    [[nodiscard]] bool fitsShort() const noexcept { return value_ <= UINT16_MAX; }
    [[nodiscard]] std::int16_t toShort() const noexcept { return static_cast<std::int16_t>(value_); }
    [[nodiscard]] std::int32_t toLong() const noexcept { return static_cast<std::int32_t>(value_); }

private:
    int bitsADigit_;
    std::uint64_t value_ = 0; // stays beyond 32 bits once it is
};

// How many bits a digit has behind "&": 4 for an h, 3 for an o, 0 for what begins no such number.
[[nodiscard]] int radixBits(char16_t letter) noexcept;

enum class ScanVerdict { number, notNumber, overflow };

// The value of a text that is a number as a whole: blanks, one sign and the currency symbol before or behind,
// parentheses for negatives, grouping symbols anywhere behind the first digit, exponents with e or d, "&H" and "&O".
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
    [[nodiscard]] bool scanRadixDigits() noexcept;
    [[nodiscard]] bool scanDecimalDigits() noexcept;
    [[nodiscard]] bool scanExponent() noexcept;

    std::u16string_view text_;
    const Locale& locale_;
    std::size_t at_ = 0;
    DigitCollector digits_;
    [[nodiscard]] bool takeSign() noexcept;

    bool signed_ = false, opened_ = false, closed_ = false, currency_ = false;
    bool negative_ = false;
    bool radix_ = false;
    RadixCollector radixDigits_;
};

} // namespace vela::engine
