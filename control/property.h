// What the property table says of one property.
#pragma once

#include "engine/field/property_types.h"
#include "engine/value.h"

#include <concepts>
#include <cstdint>
#include <string_view>

namespace vela::control {

class Vela;
struct StoredState;

enum class PropertyType { boolean, byte, integer, longInteger, colour, enumeration, text, font, variant };
enum class Access { read, readWrite, readWriteReference };
enum class Browsable { yes, no, hidden }; // hidden: from object browsers too
enum class Category { behaviour, appearance, font, text, data, calendar, date, errors, mask, number };

// Where the value lives. put() stores it and notifies nobody; values are of the property's own type.
struct PropertyValue {
    PropertyType type = PropertyType::text;
    Access access = Access::readWrite;
    engine::Value (*get)(Vela&) = nullptr;
    void (*put)(Vela&, const engine::Value&) = nullptr;
    engine::Value (*save)(const StoredState&) = nullptr; // null: never saved
    void (*load)(StoredState&, const engine::Value&) = nullptr;
    bool shared = false; // lives in the process, not in the control
};

// A default as a row writes it; its type is the property's.
struct Literal {
    std::int64_t number = 0; // also truth values and colours
    std::u16string_view text;
    constexpr Literal() = default;
    template <std::integral T>
    constexpr Literal(T value) : number(value)
    {
    }
    constexpr Literal(const char16_t* value) : text(value) {}
};

// What the host is notified with after a put: the property's name and DISPID, or another name and no DISPID.
struct Notification {
    std::u16string_view name;
    bool sent = true;
};
inline constexpr Notification silent{.sent = false};

// Which value is left out of the bag when the settings are written.
struct LeftOut {
    enum class Kind { loaded, other, nothing } kind = Kind::loaded;
    Literal value; // of kind other: a whole number or a text, whatever the property's type
};
inline constexpr LeftOut nothing{.kind = LeftOut::Kind::nothing};
constexpr LeftOut other(Literal value)
{
    return {LeftOut::Kind::other, value};
}

// In the host's property bag. Places count from 1 and belong to one property each; 0: not saved.
struct Saved {
    int read = 0;
    int written = 0;
    Literal loaded; // the value of a control that is loaded without the key
    LeftOut leftOut;
    std::u16string_view key; // empty: the property's name
};

// The put that gives a new control its value, in the order of their places. 0: the value of the member in Settings.
struct Fresh {
    int place = 0;
    Literal value;
    bool designOnly = false; // cannot be put in run mode
};

// The control of a property page that edits it; each page reads and writes its properties in two orders from 1 on.
struct OnPage {
    std::u16string_view name; // "ppGeral"; empty: on no page
    std::u16string_view control;
    int read = 0;
    int written = 0;
    int index = -1; // of a control array
};

// What the manual's reference says.
struct ManualText {
    std::string_view types;   // T, N, D, M: the text types for which it means something
    std::string_view example; // what may be put, as VBA writes it; empty: nothing at run time
    std::string_view errors;  // the number that a put may raise, beyond 6 and 13 for what is not of the type
    std::string_view english;
    std::string_view portuguese = {}; // empty: the help text says it
};

struct Property {
    std::u16string_view name;
    int dispid = 0;
    Browsable browsable = Browsable::yes;
    bool bindable = false; // asks and tells property sinks
    Category category = Category::behaviour;
    std::u16string_view help; // for object browsers, in Portuguese
    PropertyValue value;
    std::u16string_view enumeration; // of type enumeration: its name
    Notification notification;
    Saved saved;
    Fresh fresh;
    OnPage page;
    ManualText manual;

    [[nodiscard]] constexpr PropertyType type() const noexcept { return value.type; }
    [[nodiscard]] constexpr Access access() const noexcept { return value.access; }
    [[nodiscard]] constexpr std::u16string_view key() const noexcept { return saved.key.empty() ? name : saved.key; }
};

} // namespace vela::control
