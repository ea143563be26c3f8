// The one table of the control's members: automation, access by name, saving, the pages, the type library and the
// manual read it.
#pragma once

#include "control/property.h"

#include <span>
#include <string_view>

namespace vela::control {

// In the order of the interface. Rows are appended, never moved.
[[nodiscard]] std::span<const Property> properties() noexcept;
[[nodiscard]] const Property* findProperty(std::u16string_view name) noexcept;             // case-sensitive
[[nodiscard]] const engine::Enumeration* enumerationOf(const Property& property) noexcept; // null: has none

// The saved properties in the orders in which a bag is read and written, and those that a new control is put.
using PropertyOrder = std::span<const Property* const>;
[[nodiscard]] PropertyOrder readingOrder() noexcept;
[[nodiscard]] PropertyOrder writingOrder() noexcept;
[[nodiscard]] PropertyOrder freshOrder() noexcept;

// A literal of a row as a value of the property's type.
[[nodiscard]] engine::Value valueOf(PropertyType type, const Literal& literal);

// Converts to the property's type, puts and notifies. Raises 6 beyond the type's range, 13 for what does not convert,
// 438 for a read-only property, and what the put raises.
void putProperty(Vela& control, const Property& property, const engine::Value& value);
[[nodiscard]] engine::Value getProperty(Vela& control, const Property& property);
// By name, case-sensitive; 438 for an unknown one.
void putProperty(Vela& control, std::u16string_view name, const engine::Value& value);
[[nodiscard]] engine::Value getProperty(Vela& control, std::u16string_view name);

struct Method {
    std::u16string_view name;
    int dispid = 0;
    void (*call)(Vela&) = nullptr;
    std::u16string_view help;
    std::string_view english; // of the manual
};
[[nodiscard]] std::span<const Method> methods() noexcept; // About, DestruirToolTip, LimparMemoria

struct EventParameter {
    std::u16string_view name; // 16-bit, by reference
};
struct Event {
    std::u16string_view name;
    int dispid = 0;
    std::span<const EventParameter> parameters;
    std::u16string_view help;
    std::string_view english;
};
[[nodiscard]] std::span<const Event> events() noexcept; // Change, Click, KeyPress, KeyUp, KeyDown, MouseOut

} // namespace vela::control
