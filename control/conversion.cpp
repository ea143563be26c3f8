// Conversion of a put value to the type of its property.
#include "control/conversion.h"

#include "engine/error.h"
#include "engine/text/conversions.h"

#include <limits>
#include <variant>

namespace vela::control {

namespace {

std::int32_t within(std::int32_t number, std::int32_t low, std::int32_t high)
{
    if (number < low || number > high)
        engine::raise(engine::error_number::overflow);
    return number;
}

// True is -1 as a number, and all bits of a byte.
std::int32_t toByte(const engine::Value& value, const engine::Locale& locale)
{
    if (const bool* truth = std::get_if<bool>(&value))
        return *truth ? std::numeric_limits<std::uint8_t>::max() : 0;
    return within(engine::toLong(value, locale), 0, std::numeric_limits<std::uint8_t>::max());
}

} // namespace

engine::Value convert(PropertyType type, const engine::Value& value, const engine::Locale& locale)
{
    switch (type) {
    case PropertyType::boolean: return engine::toBoolean(value, locale);
    case PropertyType::byte: return toByte(value, locale);
    case PropertyType::integer:
        return within(engine::toLong(value, locale), std::numeric_limits<std::int16_t>::min(),
                      std::numeric_limits<std::int16_t>::max());
    case PropertyType::longInteger:
    case PropertyType::colour:
    case PropertyType::enumeration: return engine::toLong(value, locale);
    case PropertyType::text: return engine::toText(value, locale);
    case PropertyType::font: engine::raise(engine::error_number::typeMismatch);
    case PropertyType::variant: break;
    }
    return value;
}

std::int32_t notNegative(std::int32_t value)
{
    if (value < 0)
        engine::raise(engine::error_number::invalidPropertyValue);
    return value;
}

std::uint8_t wholePoints(double size)
{
    if (!(size >= 0 && size < 255.5))
        engine::raise(engine::error_number::overflow);
    const int whole = static_cast<int>(size);
    const double rest = size - whole;
    const bool up = rest > 0.5 || (rest == 0.5 && whole % 2 != 0);
    return static_cast<std::uint8_t>(whole + (up ? 1 : 0));
}

} // namespace vela::control
