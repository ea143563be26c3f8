// The property table by name and by DISPID, the methods and the events.
#include "control/property_table.h"

#include "control/conversion.h"
#include "control/property_rows.h"
#include "control/vela.h"
#include "engine/error.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vela::control {

namespace {

using RowNumber = std::uint8_t;

template <class Key>
std::array<RowNumber, std::tuple_size_v<PropertyRows>> sortedBy(Key key)
{
    std::array<RowNumber, std::tuple_size_v<PropertyRows>> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<RowNumber>(i);
    std::ranges::sort(order, {}, [key](RowNumber row) { return key(propertyRows()[row]); });
    return order;
}

template <class Order, class Wanted, class Key>
const Property* find(const Order& order, const Wanted& wanted, Key key)
{
    const auto found =
        std::ranges::lower_bound(order, wanted, {}, [key](RowNumber row) { return key(propertyRows()[row]); });
    if (found == order.end() || key(propertyRows()[*found]) != wanted)
        return nullptr;
    return &propertyRows()[*found];
}

constexpr auto nameOf = [](const Property& row) { return row.name; };
constexpr auto dispidOf = [](const Property& row) { return row.dispid; };

constexpr std::array<EventParameter, 1> keyPressParameters{{{u"KeyAscii"}}};
constexpr std::array<EventParameter, 2> keyParameters{{{u"KeyCode"}, {u"Shift"}}};

const Property& named(std::u16string_view name)
{
    const Property* property = findProperty(name);
    if (property == nullptr)
        engine::raise(engine::error_number::unsupportedMember);
    return *property;
}

} // namespace

std::span<const Property> properties() noexcept
{
    return propertyRows();
}

const Property* findProperty(std::u16string_view name) noexcept
{
    static const auto order = sortedBy(nameOf);
    return find(order, name, nameOf);
}

const Property* findProperty(int dispid) noexcept
{
    static const auto order = sortedBy(dispidOf);
    return find(order, dispid, dispidOf);
}

void putProperty(Vela& control, const Property& property, const engine::Value& value)
{
    if (property.access == Access::read)
        engine::raise(engine::error_number::unsupportedMember);
    property.put(control, convert(property.type, value, control.locale()));
}

engine::Value getProperty(Vela& control, const Property& property)
{
    return property.get(control);
}

void putProperty(Vela& control, std::u16string_view name, const engine::Value& value)
{
    putProperty(control, named(name), value);
}

engine::Value getProperty(Vela& control, std::u16string_view name)
{
    return getProperty(control, named(name));
}

std::span<const Method> methods() noexcept
{
    static constexpr std::array<Method, 3> rows{{
        {u"About", -552, [](Vela& control) { control.About(); }, u"Mostra a caixa Sobre"},
        {u"DestruirToolTip", 80, [](Vela& control) { control.DestruirToolTip(); }, u"Retira a dica do campo"},
        {u"LimparMemoria", 81, [](Vela& control) { control.LimparMemoria(); },
         u"Solta a caixa de edição; depois, o que precisa dela gera o erro 91"},
    }};
    return rows;
}

std::span<const Event> events() noexcept
{
    static constexpr std::array<Event, 6> rows{{
        {u"Change", 1, {}, u"O texto mudou"},
        {u"Click", -600, {}, u"O campo foi clicado; um clique duplo o gera mais uma vez"},
        {u"KeyPress", -603, keyPressParameters,
         u"Um caractere foi digitado e filtrado; ponha 0 em KeyAscii para recusá-lo, ou outro caractere"},
        {u"KeyUp", -604, keyParameters, u"Uma tecla foi solta"},
        {u"KeyDown", -602, keyParameters, u"Uma tecla foi apertada; ponha 0 em KeyCode para recusá-la"},
        {u"MouseOut", 2, {}, u"O ponteiro saiu do campo"},
    }};
    return rows;
}

} // namespace vela::control
