// How a row of the property table reaches what is never saved: windows, the container's name and the selection.
#pragma once

#include "control/property_values.h"
#include "engine/error.h"

#include <cstdint>
#include <limits>

namespace vela::control {

// A window handle as the 32-bit number that hosts read: the system never uses more bits.
[[nodiscard]] inline engine::Value handleOf(platform::WindowId window) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(window.value));
}

inline constexpr PropertyValue editWindow{
    .type = PropertyType::longInteger, .access = Access::read, .get = [](Vela& control) {
        return handleOf(PropertyAccess::box(control).window());
    }};

inline constexpr PropertyValue surfaceWindow{
    .type = PropertyType::longInteger, .access = Access::read, .get = [](Vela& control) {
        return handleOf(PropertyAccess::context(control).surface.window());
    }};

inline constexpr PropertyValue containerName{.access = Access::read, .get = [](Vela& control) -> engine::Value {
                                                 return PropertyAccess::context(control).host.containerName();
                                             }};

inline constexpr PropertyValue selLength{
    .type = PropertyType::longInteger,
    .get = [](Vela& control) -> engine::Value { return std::int32_t{PropertyAccess::box(control).selection().length}; },
    .put =
        [](Vela& control, const engine::Value& value) {
            platform::EditBox& box = PropertyAccess::box(control);
            box.select({box.selection().start, notNegative(std::get<std::int32_t>(value))});
        }};

inline constexpr PropertyValue selStart{.type = PropertyType::integer,
                                        .get = [](Vela& control) -> engine::Value {
                                            const int start = PropertyAccess::box(control).selection().start;
                                            if (start > std::numeric_limits<std::int16_t>::max())
                                                engine::raise(engine::error_number::overflow);
                                            return std::int32_t{start};
                                        },
                                        .put =
                                            [](Vela& control, const engine::Value& value) {
                                                platform::EditBox& box = PropertyAccess::box(control);
                                                box.select({notNegative(std::get<std::int32_t>(value)), 0});
                                            }};

} // namespace vela::control
