// Any pattern with any value: a kept pattern and its copy answer alike, and only the errors of patterns are raised.
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"
#include "fuzzers/input.h"

#include <cmath>

namespace {

using namespace vela::engine;
using vela::fuzz::require;

constexpr Date today{45351};

struct Outcome {
    std::u16string text;
    int error = 0;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <typename Function>
Outcome outcomeOf(Function&& function)
{
    try {
        return {function(), 0};
    } catch (const Error& error) {
        require(error.number == error_number::invalidCall || error.number == error_number::overflow);
        return {{}, error.number};
    }
}

template <typename Value>
Outcome keptOutcome(const Pattern& pattern, Value value, const Locale& locale)
{
    return outcomeOf([&] {
        std::u16string text;
        pattern.format(value, locale, text);
        return text;
    });
}

template <typename Value>
void checkKept(const Pattern& pattern, Value value, const Locale& locale)
{
    const Outcome fresh = outcomeOf([&] { return format(value, pattern.text(), locale, today); });
    require(keptOutcome(pattern, value, locale) == fresh);
    const Pattern copy = pattern;
    require(keptOutcome(copy, value, locale) == fresh);
}

// "#,##0.00" and the like: the digits shown are the number's, so reading them back gives it to the places shown.
void checkReadBack(double number, const Locale& locale)
{
    if (!(std::fabs(number) < 1e14))
        return;
    std::u16string text;
    Pattern(u"#,##0.0000").format(number, locale, text);
    const auto again = tryParseDouble(text, locale);
    require(again && std::fabs(*again - number) <= 0.00005000001 + std::fabs(number) * 1e-14);
}

} // namespace

// Byte 0: the locale and the kind of value; 8 bytes of number; the pattern; behind 0xFE a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vela::fuzz::Input input(data, size);
    const std::uint8_t choice = input.byte();
    const Locale& locale = (choice & 1) != 0 ? enUs() : ptBr();
    const double number = input.number();
    const Pattern pattern(input.text());
    checkKept(pattern, number, locale);
    checkKept(pattern, Date{number}, locale);
    const std::u16string text = input.rest();
    static_cast<void>(outcomeOf([&] { return format(text, pattern.text(), locale, today); }));
    static_cast<void>(outcomeOf([&] { return format(Empty{}, pattern.text(), locale, today); }));
    static_cast<void>(outcomeOf([&] { return format(true, pattern.text(), locale, today); }));
    checkReadBack(number, locale);
    return 0;
}
