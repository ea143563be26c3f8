// The table of the tooltip's properties, and puts and gets through it.
#include "tooltip/tooltip_properties.h"

#include "engine/error.h"
#include "engine/text/conversions.h"

#include <algorithm>
#include <array>

namespace vela::tooltip {
namespace {

using engine::Value;
using Tip = CBalloonToolTip;

std::int32_t whole(const Value& value)
{
    return std::get<std::int32_t>(value);
}
Value colourValue(engine::Colour colour)
{
    return static_cast<std::int32_t>(colour.value);
}
engine::Colour colour(const Value& value)
{
    return {static_cast<std::uint32_t>(whole(value))};
}

using Type = TipPropertyType;

const std::array<TipProperty, 10>& table() noexcept
{
    static const std::array<TipProperty, 10> rows = {{
        {u"VisibleTime", Type::longInteger, nullptr, [](const Tip& t) -> Value { return t.VisibleTime(); },
         [](Tip& t, const Value& v) { t.VisibleTime(whole(v)); }},
        {u"DelayTime", Type::longInteger, nullptr, [](const Tip& t) -> Value { return t.DelayTime(); },
         [](Tip& t, const Value& v) { t.DelayTime(whole(v)); }},
        {u"Icon", Type::enumeration, engine::findEnumeration(u"eIconeToolTipText"),
         [](const Tip& t) -> Value { return static_cast<std::int32_t>(t.Icon()); },
         [](Tip& t, const Value& v) { t.Icon(static_cast<engine::eIconeToolTipText>(whole(v))); }},
        {u"ForeColor", Type::colour, nullptr, [](const Tip& t) -> Value { return colourValue(t.ForeColor()); },
         [](Tip& t, const Value& v) { t.ForeColor(colour(v)); }},
        {u"Title", Type::text, nullptr, [](const Tip& t) -> Value { return t.Title(); },
         [](Tip& t, const Value& v) { t.Title(std::get<std::u16string>(v)); }},
        {u"PopupOnDemand", Type::boolean, nullptr, [](const Tip& t) -> Value { return t.PopupOnDemand(); },
         [](Tip& t, const Value& v) { t.PopupOnDemand(std::get<bool>(v)); }},
        {u"TipText", Type::text, nullptr, [](const Tip& t) -> Value { return t.TipText(); },
         [](Tip& t, const Value& v) { t.TipText(std::get<std::u16string>(v)); }},
        {u"Style", Type::longInteger, nullptr, [](const Tip& t) -> Value { return t.Style(); },
         [](Tip& t, const Value& v) { t.Style(whole(v)); }},
        {u"Centered", Type::boolean, nullptr, [](const Tip& t) -> Value { return t.Centered(); },
         [](Tip& t, const Value& v) { t.Centered(std::get<bool>(v)); }},
        {u"BackColor", Type::colour, nullptr, [](const Tip& t) -> Value { return colourValue(t.BackColor()); },
         [](Tip& t, const Value& v) { t.BackColor(colour(v)); }},
    }};
    return rows;
}

const TipProperty& known(std::u16string_view name)
{
    const auto* property = findTipProperty(name);
    if (property == nullptr)
        engine::raise(engine::error_number::unsupportedMember);
    return *property;
}

} // namespace

std::span<const TipProperty> tipProperties() noexcept
{
    return table();
}

const TipProperty* findTipProperty(std::u16string_view name) noexcept
{
    const auto found = std::ranges::find(table(), name, &TipProperty::name);
    return found == table().end() ? nullptr : &*found;
}

void putTipProperty(CBalloonToolTip& tip, std::u16string_view name, const Value& value, const engine::Locale& locale)
{
    const auto& property = known(name);
    switch (property.type) {
    case Type::longInteger:
    case Type::enumeration:
    case Type::colour: property.put(tip, engine::toLong(value, locale)); return;
    case Type::boolean: property.put(tip, engine::toBoolean(value, locale)); return;
    case Type::text: property.put(tip, engine::toText(value, locale)); return;
    }
}

Value getTipProperty(const CBalloonToolTip& tip, std::u16string_view name)
{
    return known(name).get(tip);
}

} // namespace vela::tooltip
