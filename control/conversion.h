// Between the values that hosts pass and the C++ types of properties.
#pragma once

#include "control/property.h"
#include "engine/text/locale.h"
#include "engine/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace vela::control {

// The value as one of the property's own type: True, fractions and texts as numbers where numbers are wanted.
// Raises 6 beyond the type's range and 13 for what does not convert.
[[nodiscard]] engine::Value convert(PropertyType type, const engine::Value& value, const engine::Locale& locale);

// A font's size as the byte that hosts see: halves to even, 8.25 is 8. Raises 6 beyond 255.
[[nodiscard]] std::uint8_t wholePoints(double size);

// The number itself; raises 380 below 0.
[[nodiscard]] std::int32_t notNegative(std::int32_t value);

template <class T>
[[nodiscard]] constexpr PropertyType propertyTypeOf() noexcept
{
    if constexpr (std::is_same_v<T, bool>)
        return PropertyType::boolean;
    else if constexpr (std::is_same_v<T, std::uint8_t>)
        return PropertyType::byte;
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return PropertyType::integer;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return PropertyType::longInteger;
    else if constexpr (std::is_same_v<T, engine::Colour>)
        return PropertyType::colour;
    else if constexpr (std::is_enum_v<T>)
        return PropertyType::enumeration;
    else
        return PropertyType::text;
}

// Colours, enumerators and numbers are whole numbers in a Value.
template <class T>
[[nodiscard]] engine::Value toValue(const T& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return value;
    else if constexpr (std::is_same_v<T, engine::Colour>)
        return static_cast<std::int32_t>(value.value);
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return static_cast<std::int32_t>(value);
    else
        return std::u16string(value);
}

// The reverse, of a value that is of the property's own type already.
template <class T>
[[nodiscard]] T ownValue(const engine::Value& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return std::get<bool>(value);
    else if constexpr (std::is_same_v<T, engine::Colour>)
        return engine::Colour{static_cast<std::uint32_t>(std::get<std::int32_t>(value))};
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return static_cast<T>(std::get<std::int32_t>(value));
    else
        return T(std::get<std::u16string>(value));
}

} // namespace vela::control
