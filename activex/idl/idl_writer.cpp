// Members of the control as interface definition language.
#include "activex/idl/idl_writer.h"

#include "activex/identities.h"
#include "control/property_table.h"
#include "engine/text/utf8.h"

#include <span>
#include <string_view>

namespace vela::activex {

namespace {

using control::Access;
using control::Browsable;
using control::Property;
using control::PropertyType;
using engine::toUtf8;

constexpr std::string_view head =
    R"(// Written by vela-idl from the table of members: change that, and let the tool write this again.

import "prelude.idl";

)";

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + '"';
}

std::string line(int depth, std::string_view text)
{
    return std::string(static_cast<std::size_t>(depth) * 4, ' ') + std::string(text) + "\n";
}

std::string identified(std::string_view identity, std::string_view more = {})
{
    return "[uuid(" + std::string(identity) + ")" + std::string(more) + "]";
}

std::string enumerationText(const engine::Enumeration& enumeration, std::string_view identity)
{
    const std::string name = toUtf8(enumeration.name);
    std::string text = line(1, "typedef " + identified(identity) + " enum " + name) + line(1, "{");
    for (std::size_t i = 0; i < enumeration.members.size(); ++i) {
        const engine::Enumerator& member = enumeration.members[i];
        text += line(2, toUtf8(member.name) + " = " + std::to_string(member.value) +
                            (i + 1 < enumeration.members.size() ? "," : ""));
    }
    return text + line(1, "} " + name + ";") + "\n";
}

std::string typeOf(const Property& property)
{
    switch (property.type()) {
    case PropertyType::boolean: return "VARIANT_BOOL";
    case PropertyType::byte: return "unsigned char";
    case PropertyType::integer: return "short";
    case PropertyType::longInteger: return "long";
    case PropertyType::colour: return "OLE_COLOR";
    case PropertyType::enumeration:
        return control::enumerationOf(property) ? toUtf8(control::enumerationOf(property)->name) : "long";
    case PropertyType::text: return "BSTR";
    case PropertyType::font: return "IFontDisp*";
    case PropertyType::variant: return "VARIANT";
    }
    return {};
}

std::string helpOf(std::u16string_view text)
{
    return "helpstring(" + quoted(toUtf8(text)) + ")";
}

// What both the get and the put of a property carry.
std::string attributesOf(const Property& property)
{
    std::string text;
    if (property.bindable)
        text += ", bindable, requestedit";
    if (property.bindable && property.dispid == 0)
        text += ", displaybind, defaultbind";
    if (property.browsable != Browsable::yes)
        text += ", nonbrowsable";
    if (property.browsable == Browsable::hidden)
        text += ", hidden";
    return text + ", " + helpOf(property.help);
}

std::string propertyText(const Property& property)
{
    const std::string id = "[id(" + std::to_string(property.dispid) + "), ";
    const std::string attributes = attributesOf(property) + "] ";
    const std::string name = toUtf8(property.name);
    const std::string type = typeOf(property);
    std::string text = line(2, id + "propget" + attributes + type + " " + name + "();");
    if (property.access() != Access::read) {
        const std::string_view kind = property.access() == Access::readWriteReference ? "propputref" : "propput";
        text += line(2, id + std::string(kind) + attributes + "void " + name + "([in] " + type + " value);");
    }
    return text;
}

std::string velaInterfaceText()
{
    std::string text = line(1, identified(identity::velaInterface, ", helpstring(\"Campo de entrada de dados\")")) +
                       line(1, "dispinterface IVela") + line(1, "{") + line(1, "properties:") + line(1, "methods:");
    for (const Property& property : control::properties())
        text += propertyText(property);
    for (const control::Method& method : control::methods())
        text += line(2, "[id(" + std::to_string(method.dispid) + "), " + helpOf(method.help) + "] void " +
                            toUtf8(method.name) + "();");
    return text + line(1, "}") + "\n";
}

std::string velaEventsText()
{
    std::string text =
        line(1, identified(identity::velaEvents, ", helpstring(\"Eventos do campo de entrada de dados\")")) +
        line(1, "dispinterface IVelaEvents") + line(1, "{") + line(1, "properties:") + line(1, "methods:");
    for (const control::Event& event : control::events()) {
        std::string parameters;
        for (const control::EventParameter& parameter : event.parameters)
            parameters += (parameters.empty() ? "" : ", ") + ("[in, out] short* " + toUtf8(parameter.name));
        text += line(2, "[id(" + std::to_string(event.dispid) + "), " + helpOf(event.help) + "] void " +
                            toUtf8(event.name) + "(" + parameters + ");");
    }
    return text + line(1, "}") + "\n";
}

std::string calendarText()
{
    return line(1, identified(identity::calendarInterface, ", helpstring(\"Calend\u00E1rio mensal\")")) +
           line(1, "dispinterface IcCalendar") + line(1, "{") + line(1, "properties:") + line(1, "methods:") +
           line(2, "[id(0), propget, bindable, " + helpOf(u"Data escolhida no calend\u00E1rio") +
                       "] DATE DateInitial();") +
           line(2, "[id(1), " + helpOf(u"Escolhe a data e mostra o m\u00EAs dela") +
                       "] void IniciaCalendario([in] VARIANT data);") +
           line(2, "[id(2), " + helpOf(u"Conta uma data real\u00E7ada") +
                       "] VARIANT IncluiDataRealcada([in] VARIANT data);") +
           line(1, "}") + "\n" +
           line(1, identified(identity::calendarEvents, ", helpstring(\"Eventos do calend\u00E1rio mensal\")")) +
           line(1, "dispinterface IcCalendarEvents") + line(1, "{") + line(1, "properties:") + line(1, "methods:") +
           line(2, "[id(-600), " + helpOf(u"Uma data foi escolhida") + "] void Click();") + line(1, "}") + "\n";
}

std::string classText(std::string_view identity, std::string_view name, std::string_view help)
{
    return line(1, identified(identity, ", control, helpstring(" + quoted(help) + ")")) +
           line(1, "coclass " + std::string(name)) + line(1, "{") +
           line(2, "[default] dispinterface I" + std::string(name) + ";") +
           line(2, "[default, source] dispinterface I" + std::string(name) + "Events;") + line(1, "}");
}

} // namespace

std::string interfaceDefinition()
{
    std::string text(head);
    text += identified(identity::library,
                       ", version(" + std::string(identity::libraryVersion) + "), control, helpstring(\"Vela 1.0\")") +
            "\nlibrary VelaLib\n{\n" + line(1, "importlib(\"stdole2.tlb\");") + "\n";
    for (std::size_t i = 0; i < engine::enumerations().size(); ++i)
        text += enumerationText(engine::enumerations()[i], identity::enumerations[i]);
    text += velaInterfaceText() + velaEventsText() + calendarText();
    text += classText(identity::velaClass, "Vela", "Campo de entrada de dados") + "\n";
    text += classText(identity::calendarClass, "cCalendar", "Calend\u00E1rio mensal");
    return text + "}\n";
}

} // namespace vela::activex
