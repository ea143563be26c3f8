// Any text as a number: the readers agree with one another, and what is written is read back.
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"
#include "fuzzers/input.h"

#include <cmath>

namespace {

using namespace vela::engine;
using vela::fuzz::require;

template <typename Function>
int errorOf(Function&& function)
{
    try {
        function();
        return 0;
    } catch (const Error& error) {
        return error.number;
    }
}

void checkWritten(double number, const Locale& locale)
{
    const std::u16string text = numberToText(number, locale);
    const auto again = tryParseDouble(text, locale);
    require(again && numberToText(*again, locale) == text);
    const double magnitude = std::fabs(number);
    require(std::fabs(*again - number) <= magnitude * 1e-14 + 5e-324);
    require(tryParseDouble(formatNumber(number, 4, locale), locale).has_value());
}

void checkCurrency(const std::u16string& text, double number, const Locale& locale)
{
    const int error = errorOf([&] {
        const double amount = static_cast<double>(toCurrency(text, locale).tenThousandths) / 10000;
        require(std::fabs(amount - number) <= 0.00006 + std::fabs(number) * 1e-15);
    });
    require(error == 0 || (error == error_number::overflow && std::fabs(number) > 9e14));
}

} // namespace

// Byte 0: the locale; then a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vela::fuzz::Input input(data, size);
    const Locale& locale = (input.byte() & 1) != 0 ? enUs() : ptBr();
    const std::u16string text = input.rest();
    const auto number = tryParseDouble(text, locale);
    require(isNumeric(text, locale) == number.has_value());
    double value = 0;
    const int error = errorOf([&] { value = toDouble(text, locale); });
    require((error == 0) == number.has_value());
    if (number) {
        require(value == *number && std::isfinite(value));
        checkWritten(value, locale);
        checkCurrency(text, value, locale);
    } else {
        require(error == error_number::typeMismatch || error == error_number::overflow);
    }
    const int leading = errorOf([&] { value = leadingNumber(text); });
    require(leading == error_number::overflow || (leading == 0 && std::isfinite(value)));
    return 0;
}
