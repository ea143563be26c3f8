// Values of any kind to the type a property or a text wants.
#include "engine/text/conversions.h"

#include "engine/error.h"
#include "engine/text/calendar_date.h"
#include "engine/text/characters.h"
#include "engine/text/decimal_text.h"

#include <cmath>
#include <limits>

namespace vela::engine {
namespace {

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

double roundHalfToEven(double number) noexcept
{
    const double below = std::floor(number);
    const double rest = number - below;
    if (rest == 0.5)
        return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
    return rest < 0.5 ? below : below + 1;
}

Date checkedDate(double serial)
{
    if (!momentOf({serial}))
        raise(error_number::overflow);
    return {serial};
}

} // namespace

bool isNumeric(const Value& value, const Locale& locale) noexcept
{
    if (const auto* text = std::get_if<std::u16string>(&value))
        return isNumeric(std::u16string_view(*text), locale);
    return !std::holds_alternative<Date>(value);
}

std::u16string toText(const Value& value, const Locale& locale)
{
    return std::visit(Overloaded{[](Empty) { return std::u16string(); },
                                 [](bool truth) { return std::u16string(truth ? u"True" : u"False"); },
                                 [](std::int32_t whole) { return decimalText(whole); },
                                 [&](double number) { return numberToText(number, locale); },
                                 [](const std::u16string& text) { return text; },
                                 [&](Date date) { return dateToText(date, locale); }},
                      value);
}

bool toBoolean(const Value& value, const Locale& locale)
{
    if (const auto* text = std::get_if<std::u16string>(&value)) {
        if (equalIgnoringCase(*text, u"true") || equalIgnoringCase(*text, u"false"))
            return equalIgnoringCase(*text, u"true");
    }
    return toDouble(value, locale) != 0.0;
}

std::int32_t toLong(const Value& value, const Locale& locale)
{
    const double rounded = roundHalfToEven(toDouble(value, locale));
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        raise(error_number::overflow);
    return static_cast<std::int32_t>(rounded);
}

double toDouble(const Value& value, const Locale& locale)
{
    return std::visit(
        Overloaded{[](Empty) { return 0.0; }, [](bool truth) { return truth ? -1.0 : 0.0; },
                   [](std::int32_t whole) { return static_cast<double>(whole); }, [](double number) { return number; },
                   [&](const std::u16string& text) { return toDouble(std::u16string_view(text), locale); },
                   [](Date date) { return date.serial; }},
        value);
}

Date toDate(const Value& value, const Locale& locale, Date today)
{
    if (const auto* text = std::get_if<std::u16string>(&value))
        return toDate(std::u16string_view(*text), locale, today);
    return checkedDate(toDouble(value, locale));
}

} // namespace vela::engine
