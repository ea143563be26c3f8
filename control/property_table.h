// The one table of the control's members: automation, access by name, the type library and the manual read it.
#pragma once

#include "engine/field/property_types.h"
#include "engine/value.h"

#include <span>
#include <string_view>

namespace vela::control {

class Vela;

enum class PropertyType { boolean, byte, integer, longInteger, colour, enumeration, text, font, variant };
enum class Access { read, readWrite, readWriteReference };
enum class Browsable { yes, no, hidden }; // hidden: from object browsers too

struct Property {
    std::u16string_view name;
    int dispid = 0;
    PropertyType type = PropertyType::text;
    const engine::Enumeration* enumeration = nullptr; // of type enumeration
    Access access = Access::readWrite;
    Browsable browsable = Browsable::yes;
    bool bindable = false;    // tells requestedit and changed to property sinks
    std::u16string_view help; // for object browsers, in Portuguese
    engine::Value (*get)(Vela&) = nullptr;
    void (*put)(Vela&, const engine::Value&) = nullptr; // takes a value of the property's own type
};

// In the order of the interface; 86 rows. Rows are appended, never moved.
[[nodiscard]] std::span<const Property> properties() noexcept;
[[nodiscard]] const Property* findProperty(std::u16string_view name) noexcept; // case-sensitive
[[nodiscard]] const Property* findProperty(int dispid) noexcept;

// Converts to the property's type and puts. Raises 6 beyond the type's range, 13 for what does not convert,
// 438 for a read-only property, and what the setter raises.
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
};
[[nodiscard]] std::span<const Event> events() noexcept; // Change, Click, KeyPress, KeyUp, KeyDown, MouseOut

} // namespace vela::control
