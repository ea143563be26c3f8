// How a row of the property table reaches a value that lives in the edit box: its traits, its text, its background.
#pragma once

#include "control/property_values.h"
#include "engine/error.h"

#include <string>
#include <type_traits>
#include <utility>

namespace vela::control {

// A part of the edit box's traits: `Part` converts between the traits and the property's own type.
template <class Part>
constexpr PropertyValue traitAt()
{
    return {.type = Part::type,
            .get = [](Vela& control) { return Part::get(PropertyAccess::box(control).traits()); },
            .put =
                [](Vela& control, const engine::Value& value) {
                    platform::EditTraits traits = PropertyAccess::box(control).traits();
                    Part::put(traits, value);
                    if (traits != PropertyAccess::box(control).traits())
                        PropertyAccess::box(control).putTraits(traits);
                },
            .save = [](const StoredState& state) { return Part::get(state.traits); },
            .load = [](StoredState& state, const engine::Value& value) { Part::put(state.traits, value); }};
}

template <class Place>
struct TraitPart {
    using T = std::remove_cvref_t<decltype(Place::in(std::declval<platform::EditTraits&>()))>;
    static constexpr PropertyType type = propertyTypeOf<T>();
    static engine::Value get(const platform::EditTraits& traits) { return toValue(Place::in(traits)); }
    static void put(platform::EditTraits& traits, const engine::Value& value)
    {
        Place::in(traits) = ownValue<T>(value);
    }
};
template <auto member>
struct FontMember {
    static auto& in(auto& traits) { return traits.font.*member; }
};

template <auto member>
inline constexpr PropertyValue trait = traitAt<TraitPart<MemberOf<member>>>();
template <auto member>
inline constexpr PropertyValue fontPart = traitAt<TraitPart<FontMember<member>>>();

// The values that are reached in a way of their own.
inline constexpr PropertyValue textValue{
    .get = [](Vela& control) -> engine::Value { return control.Text(); },
    .put = [](Vela& control, const engine::Value& value) { control.Text(std::get<std::u16string>(value)); },
    .save = [](const StoredState& state) -> engine::Value { return state.text; },
    .load = [](StoredState& state, const engine::Value& value) { state.text = std::get<std::u16string>(value); }};

// Oddity: BackColor also sets BackColorGotFocus; forms put BackColor alone and expect to see it during the entry.
inline constexpr PropertyValue backColour{
    .type = PropertyType::colour,
    .get = [](Vela& control) { return toValue(PropertyAccess::box(control).colours().back); },
    .put =
        [](Vela& control, const engine::Value& value) {
            const auto colour = ownValue<engine::Colour>(value);
            platform::EditBox& box = PropertyAccess::box(control);
            box.putColours({box.colours().fore, colour});
            control.BackColorGotFocus(colour);
        },
    .save = [](const StoredState& state) { return toValue(state.back); },
    .load = [](StoredState& state, const engine::Value& value) { state.back = ownValue<engine::Colour>(value); }};

inline constexpr PropertyValue enabledValue = [] {
    PropertyValue value = trait<&platform::EditTraits::enabled>;
    value.put = [](Vela& control, const engine::Value& wanted) {
        Context& context = PropertyAccess::context(control);
        context.putTrait(&platform::EditTraits::enabled, std::get<bool>(wanted));
        context.surface.putEnabled(std::get<bool>(wanted));
    };
    return value;
}();

struct PasswordPart {
    static constexpr PropertyType type = PropertyType::text;
    static engine::Value get(const platform::EditTraits& traits)
    {
        return traits.passwordChar == 0 ? std::u16string() : std::u16string(1, traits.passwordChar);
    }
    static void put(platform::EditTraits& traits, const engine::Value& value)
    {
        const auto& text = std::get<std::u16string>(value);
        if (text.size() > 1)
            engine::raise(engine::error_number::invalidPropertyValue);
        traits.passwordChar = text.empty() ? u'\0' : text.front();
    }
};
inline constexpr PropertyValue passwordValue = traitAt<PasswordPart>();

struct LimitPart {
    static constexpr PropertyType type = PropertyType::integer;
    static engine::Value get(const platform::EditTraits& traits) { return std::int32_t{traits.maxLength}; }
    static void put(platform::EditTraits& traits, const engine::Value& value)
    {
        traits.maxLength = notNegative(std::get<std::int32_t>(value));
    }
};
inline constexpr PropertyValue maxLengthValue = traitAt<LimitPart>();

// Whole points: the property is a byte.
struct SizePart {
    static constexpr PropertyType type = PropertyType::byte;
    static engine::Value get(const platform::EditTraits& traits) { return std::int32_t{wholePoints(traits.font.size)}; }
    static void put(platform::EditTraits& traits, const engine::Value& value)
    {
        traits.font.size = std::get<std::int32_t>(value);
    }
};
inline constexpr PropertyValue fontSizeValue = traitAt<SizePart>();

// Read by name, a font answers the name of its face; only a font object can be put.
inline constexpr PropertyValue fontValue{
    .type = PropertyType::font,
    .access = Access::readWriteReference,
    .get = [](Vela& control) -> engine::Value { return control.Font().name; },
    .put = [](Vela&, const engine::Value&) { engine::raise(engine::error_number::typeMismatch); }};

inline constexpr PropertyValue variantValue{
    .type = PropertyType::variant,
    .get = [](Vela& control) { return PropertyAccess::content(control).value(); },
    .put = [](Vela& control, const engine::Value& value) { PropertyAccess::content(control).putValue(value); }};

} // namespace vela::control
