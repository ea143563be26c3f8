// Texts to numbers: the numeric test, doubles, currency and the leading number.
#include "engine/text/number_parse.h"

#include "engine/error.h"
#include "engine/text/characters.h"
#include "engine/text/number_scanner.h"
#include "engine/text/plain_number.h"

namespace vela::engine {
namespace {

constexpr std::int64_t mostExponent = 1'000'000;

// Raises what a verdict other than "number" means to the caller.
void require(ScanVerdict verdict)
{
    if (verdict != ScanVerdict::number)
        raise(verdict == ScanVerdict::overflow ? error_number::overflow : error_number::typeMismatch);
}

ScanVerdict scanDouble(std::u16string_view text, const Locale& locale, double& value) noexcept
{
    if (const auto plain = readPlainNumber(text, locale)) {
        value = plain->value();
        return ScanVerdict::number;
    }
    NumberScanner scanner(text, locale);
    return scanner.scan() ? scanner.toDouble(value) : ScanVerdict::notNumber;
}

// The characters of a leading number, blanks left out: reads one at a time, and can go back one exponent.
class LeadingNumberReader {
public:
    explicit LeadingNumberReader(std::u16string_view text) noexcept : text_(text) {}

    [[nodiscard]] double read()
    {
        if (peek() == u'&')
            return readRadix();
        const bool negative = takeSign();
        for (bool fraction = false;; ++at_) {
            const char16_t unit = peek();
            if (isDigit(unit)) {
                fraction ? digits_.addFraction(unit) : digits_.addWhole(unit);
                anyDigit_ = true;
            } else if (unit == u'.' && !fraction) {
                fraction = true;
            } else {
                break;
            }
        }
        if (anyDigit_ && isExponentLetter(peek())) {
            ++at_;
            readExponent();
        }
        const auto value = digits_.toDouble(negative && !digits_.isZero());
        if (!value)
            raise(error_number::overflow);
        return *value;
    }

private:
    [[nodiscard]] char16_t peek() noexcept
    {
        while (at_ < text_.size() && (text_[at_] == u' ' || text_[at_] == u'\t' || text_[at_] == u'\n'))
            ++at_;
        return at_ < text_.size() ? text_[at_] : u'\0';
    }
    [[nodiscard]] bool takeSign() noexcept
    {
        const char16_t unit = peek();
        at_ += unit == u'-' || unit == u'+' ? 1 : 0;
        return unit == u'-';
    }
    // "&HFFFF" is -1, as 16 bits; "&HFFFF&" is 65535, as 32 bits, and so is what 16 bits do not hold.
    [[nodiscard]] double readRadix()
    {
        ++at_;
        const int bits = radixBits(peek());
        if (bits == 0)
            return 0;
        ++at_;
        RadixCollector digits(bits);
        while (digits.add(peek()))
            ++at_;
        if (digits.overflows())
            raise(error_number::overflow);
        return digits.fitsShort() && peek() != u'&' ? digits.toShort() : digits.toLong();
    }
    // A letter without digits is no exponent: "1e" -> 1.
    void readExponent() noexcept
    {
        const bool negative = takeSign();
        std::int64_t exponent = 0;
        for (; isDigit(peek()); ++at_)
            exponent = exponent < mostExponent ? exponent * 10 + (text_[at_] - u'0') : exponent;
        digits_.scale(negative ? -exponent : exponent);
    }

    std::u16string_view text_;
    std::size_t at_ = 0;
    DigitCollector digits_;
    bool anyDigit_ = false;
};

} // namespace

bool isNumeric(std::u16string_view text, const Locale& locale) noexcept
{
    return tryParseDouble(text, locale).has_value();
}

std::optional<double> tryParseDouble(std::u16string_view text, const Locale& locale) noexcept
{
    double value = 0;
    return scanDouble(text, locale, value) == ScanVerdict::number ? std::optional(value) : std::nullopt;
}

double toDouble(std::u16string_view text, const Locale& locale)
{
    double value = 0;
    require(scanDouble(text, locale, value));
    return value;
}

Currency toCurrency(std::u16string_view text, const Locale& locale)
{
    NumberScanner scanner(text, locale);
    Currency currency;
    require(scanner.scan() ? scanner.toTenThousandths(currency.tenThousandths) : ScanVerdict::notNumber);
    return currency;
}

double leadingNumber(std::u16string_view text)
{
    return LeadingNumberReader(text).read();
}

} // namespace vela::engine
