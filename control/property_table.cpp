// Properties by name, and the tables of methods and events.
#include "control/property_table.h"

#include "control/conversion.h"
#include "control/vela.h"
#include "engine/error.h"

#include <algorithm>
#include <array>

namespace vela::control {

namespace {

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

const Property* findProperty(std::u16string_view name) noexcept
{
    const auto found = std::ranges::find(properties(), name, &Property::name);
    return found == properties().end() ? nullptr : &*found;
}

const engine::Enumeration* enumerationOf(const Property& property) noexcept
{
    return engine::findEnumeration(property.enumeration);
}

engine::Value valueOf(PropertyType type, const Literal& literal)
{
    switch (type) {
    case PropertyType::boolean: return literal.number != 0;
    case PropertyType::text: return std::u16string(literal.text);
    default: return static_cast<std::int32_t>(static_cast<std::uint32_t>(literal.number));
    }
}

void putProperty(Vela& control, const Property& property, const engine::Value& value)
{
    if (property.access() == Access::read)
        engine::raise(engine::error_number::unsupportedMember);
    control.put(property, convert(property.type(), value, control.locale()));
}

engine::Value getProperty(Vela& control, const Property& property)
{
    return property.value.get(control);
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
        {u"About", -552, [](Vela& control) { control.About(); }, u"Mostra a caixa Sobre", "Shows the About box."},
        {u"DestruirToolTip", 80, [](Vela& control) { control.DestruirToolTip(); }, u"Retira a dica do campo",
         "Takes the field's tip away."},
        {u"LimparMemoria", 81, [](Vela& control) { control.LimparMemoria(); },
         u"Solta a caixa de edição; depois, o que precisa dela gera o erro 91",
         "Lets go of the edit box; afterwards what needs it raises error 91."},
    }};
    return rows;
}

std::span<const Event> events() noexcept
{
    static constexpr std::array<Event, 6> rows{{
        {u"Change", 1, {}, u"O texto mudou", "The text became another text."},
        {u"Click",
         -600,
         {},
         u"O campo foi clicado; um clique duplo o gera mais uma vez",
         "The field was clicked; a double click raises it once more."},
        {u"KeyPress", -603, keyPressParameters,
         u"Um caractere foi digitado e filtrado; ponha 0 em KeyAscii para recusá-lo, ou outro caractere",
         "A character was typed and filtered; put `KeyAscii` to 0 to refuse it, or to another character."},
        {u"KeyUp", -604, keyParameters, u"Uma tecla foi solta", "A key was released."},
        {u"KeyDown", -602, keyParameters, u"Uma tecla foi apertada; ponha 0 em KeyCode para recusá-la",
         "A key was pressed; put `KeyCode` to 0 to refuse it."},
        {u"MouseOut", 2, {}, u"O ponteiro saiu do campo", "The pointer has left the field."},
    }};
    return rows;
}

} // namespace vela::control
