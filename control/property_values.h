// How a row of the property table reaches its value: in the settings, in the calendar's colours, by a pair of members.
#pragma once

#include "control/conversion.h"
#include "control/persistence.h"
#include "control/vela.h"

#include <type_traits>
#include <utility>

namespace vela::control {

struct PropertyAccess {
    static Context& context(Vela& control) { return control.context_; }
    static Settings& settings(Vela& control) { return control.context_.settings; }
    static platform::EditBox& box(Vela& control) { return control.box(); }
    static popups::SharedCalendarColours& colours(Vela& control) { return control.context_.popups.colours(); }
    // The part of the control that a put is a member of.
    template <class Argument>
    static Content& part(Vela& control, void (Content::*)(Argument))
    {
        return control.content_;
    }
    template <class Argument>
    static Look& part(Vela& control, void (Look::*)(Argument))
    {
        return control.look_;
    }
    template <class Argument>
    static TextKind& part(Vela& control, void (TextKind::*)(Argument))
    {
        return control.kind_;
    }
    static Content& content(Vela& control) { return control.content_; }
};

template <auto member>
struct MemberOf {
    static auto& in(auto& whole) { return whole.*member; }
};
template <auto member, std::size_t index>
struct ElementOf {
    static auto& in(auto& whole) { return (whole.*member)[index]; }
};

template <class Place, auto put>
constexpr PropertyValue settingAt()
{
    using T = std::remove_cvref_t<decltype(Place::in(std::declval<Settings&>()))>;
    return {
        .type = propertyTypeOf<T>(),
        .get = [](Vela& control) { return toValue(Place::in(PropertyAccess::settings(control))); },
        .put =
            [](Vela& control, const engine::Value& value) {
                if constexpr (std::is_null_pointer_v<decltype(put)>)
                    Place::in(PropertyAccess::settings(control)) = ownValue<T>(value);
                else
                    (PropertyAccess::part(control, put).*put)(ownValue<T>(value));
            },
        .save = [](const StoredState& state) { return toValue(Place::in(state.settings)); },
        .load = [](StoredState& state, const engine::Value& value) { Place::in(state.settings) = ownValue<T>(value); }};
}

// A member of Settings; `put` is the setter of one that does more than store.
template <auto member, auto put = nullptr>
inline constexpr PropertyValue setting = settingAt<MemberOf<member>, put>();
template <auto member, std::size_t index>
inline constexpr PropertyValue element = settingAt<ElementOf<member, index>, nullptr>();

// A symbol, stored together with the character that it means.
template <auto member, auto derived>
inline constexpr PropertyValue symbol = [] {
    PropertyValue value = setting<member>;
    value.put = [](Vela& control, const engine::Value& put) {
        Settings& settings = PropertyAccess::settings(control);
        settings.*member = ownValue<Simbolos>(put);
        settings.*derived = symbolOf(settings.*member);
    };
    return value;
}();

template <auto member>
inline constexpr PropertyValue calendarColour{
    .type = PropertyType::colour,
    .get = [](Vela& control) { return toValue(PropertyAccess::colours(control).read().*member); },
    .put =
        [](Vela& control, const engine::Value& value) {
            PropertyAccess::colours(control).put(member, ownValue<engine::Colour>(value));
        },
    .save = [](const StoredState& state) { return toValue(state.colours.*member); },
    .load = [](StoredState& state,
               const engine::Value& value) { state.colours.*member = ownValue<engine::Colour>(value); },
    .shared = true};

} // namespace vela::control
