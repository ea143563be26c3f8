// Scanning of numbers.
#include "engine/text/number_scanner.h"

#include "engine/text/characters.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace vela::engine {
namespace {

constexpr int leadingDigits = 18;
constexpr std::int64_t mostExponent = 1'000'000;
constexpr std::uint64_t exactInDouble = std::uint64_t{1} << 53;

int hexadecimalDigit(char16_t unit) noexcept
{
    if (isDigit(unit))
        return unit - u'0';
    const char16_t lower = lowerLetter(unit);
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

} // namespace

bool RadixCollector::add(char16_t unit) noexcept
{
    const int digit = hexadecimalDigit(unit);
    if (digit < 0 || digit >= 1 << bitsADigit_)
        return false;
    if (!overflows())
        value_ = (value_ << bitsADigit_) + static_cast<std::uint64_t>(digit);
    return true;
}

int radixBits(char16_t letter) noexcept
{
    const char16_t lower = lowerLetter(letter);
    return lower == u'h' ? 4 : lower == u'o' ? 3 : 0;
}

void DigitCollector::add(char16_t digit, int dropped) noexcept
{
    if (count_ == 0 && digit == u'0') {
        exponent_ -= dropped == 0 ? 1 : 0;
        return;
    }
    if (count_ < capacity) {
        digits_[static_cast<std::size_t>(count_++)] = static_cast<char>(digit);
        if (count_ <= leadingDigits)
            leading_ = leading_ * 10 + (digit - u'0');
        exponent_ -= dropped == 0 ? 1 : 0;
    } else {
        sticky_ = sticky_ || digit != u'0';
        exponent_ += dropped;
    }
}

std::optional<double> DigitCollector::toDouble(bool negative) const noexcept
{
    std::optional<double> value;
    if (count_ == 0) {
        value = 0.0;
    } else if (count_ <= leadingDigits && leading_ <= exactInDouble && exponent_ >= -22 && exponent_ <= 22) {
        const double whole = static_cast<double>(leading_);
        value = exponent_ < 0 ? whole / exactPowersOfTen[static_cast<std::size_t>(-exponent_)]
                              : whole * exactPowersOfTen[static_cast<std::size_t>(exponent_)];
    } else {
        value = toDoubleSlowly();
    }
    return value && negative ? std::optional(-*value) : value;
}

std::optional<double> DigitCollector::toDoubleSlowly() const noexcept
{
    std::array<char, capacity + 32> text;
    char* last = text.data();
    for (int i = 0; i < count_; ++i)
        *last++ = digits_[static_cast<std::size_t>(i)];
    std::int64_t exponent = exponent_;
    if (sticky_) {
        *last++ = '1';
        --exponent;
    }
    *last++ = 'e';
    last = std::to_chars(last, text.data() + text.size(), exponent).ptr;
    double value = 0;
    if (std::from_chars(text.data(), last, value).ec == std::errc::result_out_of_range)
        return count_ + exponent_ > 0 ? std::nullopt : std::optional(0.0);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> DigitCollector::toTenThousandths(bool negative) const noexcept
{
    const std::int64_t kept = count_ + exponent_ + 4;
    if (count_ == 0 || kept < 0)
        return 0;
    if (kept > 19)
        return std::nullopt;
    std::uint64_t value = 0;
    for (int i = 0; i < kept; ++i)
        value = value * 10 + static_cast<std::uint64_t>(i < count_ ? digits_[static_cast<std::size_t>(i)] - '0' : 0);
    if (kept < count_) {
        const char next = digits_[static_cast<std::size_t>(kept)];
        const bool beyondHalf = kept + 1 < count_ && (sticky_ || [&] {
                                    for (auto i = kept + 1; i < count_; ++i)
                                        if (digits_[static_cast<std::size_t>(i)] != '0')
                                            return true;
                                    return false;
                                }());
        value += next > '5' || (next == '5' && (beyondHalf || value % 2 == 1)) ? 1 : 0;
    }
    const std::uint64_t limit =
        static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
    if (value > limit)
        return std::nullopt;
    return static_cast<std::int64_t>(negative ? 0 - value : value);
}

// A text ends at its first NUL, as the system's texts do.
NumberScanner::NumberScanner(std::u16string_view text, const Locale& locale) noexcept
    : text_(untilNul(text)), locale_(locale)
{
}

bool NumberScanner::scan() noexcept
{
    while (takeLeading()) {
    }
    if (!(takeRadix() ? radix_ : scanDecimalDigits()))
        return false;
    while (takeTrailing()) {
    }
    return at_ == text_.size() && opened_ == closed_;
}

ScanVerdict NumberScanner::toDouble(double& value) const noexcept
{
    if (radix_) {
        value = radixDigits_.toLong();
        return radixDigits_.overflows() ? ScanVerdict::overflow : ScanVerdict::number;
    }
    const auto result = digits_.toDouble(negative_);
    value = result.value_or(0.0);
    return result ? ScanVerdict::number : ScanVerdict::overflow;
}

ScanVerdict NumberScanner::toTenThousandths(std::int64_t& value) const noexcept
{
    if (radix_) {
        value = std::int64_t{radixDigits_.toLong()} * 10000;
        return radixDigits_.overflows() ? ScanVerdict::overflow : ScanVerdict::number;
    }
    const auto result = digits_.toTenThousandths(negative_);
    value = result.value_or(0);
    return result ? ScanVerdict::number : ScanVerdict::overflow;
}

bool NumberScanner::take(std::u16string_view symbol) noexcept
{
    if (symbol.empty() || !text_.substr(at_).starts_with(symbol))
        return false;
    at_ += symbol.size();
    return true;
}

bool NumberScanner::takeBlanks() noexcept
{
    const std::size_t start = at_;
    while (at_ < text_.size() && isBlank(text_[at_]))
        ++at_;
    return at_ > start;
}

// One sign a text, in front or behind.
bool NumberScanner::takeSign() noexcept
{
    if (signed_)
        return false;
    if (take(locale_.negativeSign))
        return signed_ = negative_ = true;
    return signed_ = take(u"+");
}

bool NumberScanner::takeLeading() noexcept
{
    if (takeBlanks() || takeSign())
        return true;
    if (!opened_ && take(u"("))
        return opened_ = true;
    return !currency_ && take(locale_.currencySymbol) && (currency_ = true);
}

bool NumberScanner::takeTrailing() noexcept
{
    if (takeBlanks() || takeSign() || (!radix_ && take(locale_.grouping)))
        return true;
    if (opened_ && !closed_ && take(u")"))
        return closed_ = negative_ = true;
    return take(locale_.currencySymbol);
}

// "&H" and "&O": true when one stands here, `radix_` when digits of it follow.
bool NumberScanner::takeRadix() noexcept
{
    if (at_ + 1 >= text_.size() || text_[at_] != u'&' || radixBits(text_[at_ + 1]) == 0)
        return false;
    radixDigits_ = RadixCollector(radixBits(text_[at_ + 1]));
    at_ += 2;
    radix_ = scanRadixDigits();
    return true;
}

bool NumberScanner::scanRadixDigits() noexcept
{
    const std::size_t start = at_;
    while (at_ < text_.size() && radixDigits_.add(text_[at_]))
        ++at_;
    return at_ > start;
}

bool NumberScanner::scanDecimalDigits() noexcept
{
    bool anyDigit = false, fraction = false;
    while (at_ < text_.size()) {
        const char16_t unit = text_[at_];
        if (isDigit(unit)) {
            fraction ? digits_.addFraction(unit) : digits_.addWhole(unit);
            anyDigit = true;
            ++at_;
        } else if ((anyDigit || fraction) && take(locale_.grouping)) {
            continue;
        } else if (!fraction && take(locale_.decimal)) {
            fraction = true;
        } else if (anyDigit && isExponentLetter(unit)) {
            ++at_;
            return scanExponent();
        } else {
            break;
        }
    }
    return anyDigit;
}

// A sign and digits, nothing between them: "e-3". The number ends with them.
bool NumberScanner::scanExponent() noexcept
{
    const bool negative = take(locale_.negativeSign);
    if (!negative)
        static_cast<void>(take(u"+"));
    const std::size_t start = at_;
    std::int64_t exponent = 0;
    for (; at_ < text_.size() && isDigit(text_[at_]); ++at_)
        exponent = exponent < mostExponent ? exponent * 10 + (text_[at_] - u'0') : exponent;
    digits_.scale(negative ? -exponent : exponent);
    return at_ > start;
}

} // namespace vela::engine
