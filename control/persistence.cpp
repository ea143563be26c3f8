// Reads and writes the saved properties in the two orders of the property table.
#include "control/persistence.h"

#include "control/conversion.h"
#include "control/property_table.h"

#include <optional>

namespace vela::control {

namespace {

engine::Value loadedValue(const Property& property)
{
    return valueOf(property.type(), property.saved.loaded);
}

std::optional<engine::Value> leftOut(const Property& property)
{
    const LeftOut& leftOut = property.saved.leftOut;
    switch (leftOut.kind) {
    case LeftOut::Kind::loaded: return loadedValue(property);
    case LeftOut::Kind::other:
        return valueOf(leftOut.value.text.data() ? PropertyType::text : PropertyType::longInteger, leftOut.value);
    case LeftOut::Kind::nothing: break;
    }
    return std::nullopt;
}

// True when the value has the property's own type already, as in most bags that a control has written.
bool isOwn(PropertyType type, const engine::Value& value) noexcept
{
    switch (type) {
    case PropertyType::boolean: return std::holds_alternative<bool>(value);
    case PropertyType::longInteger:
    case PropertyType::colour:
    case PropertyType::enumeration: return std::holds_alternative<std::int32_t>(value);
    case PropertyType::text: return std::holds_alternative<std::u16string>(value);
    default: return false;
    }
}

} // namespace

void readState(platform::PropertyBag& bag, const engine::Locale& locale, StoredState& state)
{
    const PropertyOrder order = readingOrder();
    auto next = order.begin();
    try {
        for (; next != order.end(); ++next) {
            const Property& property = **next;
            const engine::Value value = bag.read(property.key(), loadedValue(property));
            if (isOwn(property.type(), value))
                property.value.load(state, value);
            else
                property.value.load(state, convert(property.type(), value, locale));
        }
    } catch (...) {
        for (; next != order.end(); ++next)
            if (!(*next)->value.shared)
                (*next)->value.load(state, loadedValue(**next));
        throw;
    }
}

void writeState(platform::PropertyBag& bag, const StoredState& state)
{
    for (const Property* const property : writingOrder())
        bag.write(property->key(), property->value.save(state), leftOut(*property));
}

} // namespace vela::control
