// Writes the members, their types, access and help texts.
#include "apps/manual/members_page.h"

#include "apps/manual/descriptions.h"
#include "control/property_table.h"

#include <stdexcept>

namespace vela::manual {

namespace {

using control::Access;
using control::Browsable;
using control::PropertyType;

std::string utf8(std::u16string_view text) // the tables hold no surrogates
{
    std::string bytes;
    for (const char16_t unit : text) {
        if (unit < 0x80) {
            bytes += static_cast<char>(unit);
        } else if (unit < 0x800) {
            bytes += static_cast<char>(0xC0 | (unit >> 6));
            bytes += static_cast<char>(0x80 | (unit & 0x3F));
        } else {
            bytes += static_cast<char>(0xE0 | (unit >> 12));
            bytes += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
            bytes += static_cast<char>(0x80 | (unit & 0x3F));
        }
    }
    return bytes;
}

std::string typeName(const control::Property& property)
{
    switch (property.type) {
    case PropertyType::boolean: return "Boolean";
    case PropertyType::byte: return "Byte";
    case PropertyType::integer: return "Integer";
    case PropertyType::longInteger: return "Long";
    case PropertyType::colour: return "Colour";
    case PropertyType::enumeration: return "`" + utf8(property.enumeration->name) + "`";
    case PropertyType::text: return "String";
    case PropertyType::font: return "font object";
    case PropertyType::variant: return "Variant";
    }
    return {};
}

std::string description(std::u16string_view member)
{
    const std::string_view text = describe(member);
    if (text.empty())
        throw std::runtime_error("no description of " + utf8(member));
    return std::string(text);
}

void addProperties(std::string& page)
{
    page += "## Properties\n\n| property | type | DISPID | what it is |\n|---|---|---|---|\n";
    for (const control::Property& property : control::properties()) {
        page += "| `" + utf8(property.name) + "` | " + typeName(property) + " | " + std::to_string(property.dispid) +
                " | " + description(property.name);
        if (property.access == Access::read)
            page += " Read only.";
        if (property.browsable == Browsable::hidden)
            page += " Hidden from object browsers.";
        else if (property.browsable == Browsable::no)
            page += " Set through the property pages.";
        if (!property.help.empty())
            page += " (\"" + utf8(property.help) + "\")";
        page += " |\n";
    }
}

void addEnumerations(std::string& page)
{
    page += "\n## Enumerations\n\n| enumeration | members |\n|---|---|\n";
    for (const engine::Enumeration& enumeration : engine::enumerations()) {
        page += "| `" + utf8(enumeration.name) + "` | ";
        for (std::size_t i = 0; i < enumeration.members.size(); ++i)
            page += (i == 0 ? "`" : ", `") + utf8(enumeration.members[i].name) +
                    "` = " + std::to_string(enumeration.members[i].value);
        page += " |\n";
    }
}

} // namespace

std::string membersPage()
{
    std::string page = "# Every property, method and event\n\n"
                       "Generated from the property table by `vela-manual`; a test keeps the two equal.\n\n";
    addProperties(page);
    page += "\n## Methods\n\n| method | DISPID | what it does |\n|---|---|---|\n";
    for (const control::Method& method : control::methods())
        page += "| `" + utf8(method.name) + "` | " + std::to_string(method.dispid) + " | " + description(method.name) +
                " |\n";
    page += "\n## Events\n\n| event | DISPID | parameters (Integer, by reference) | raised when |\n|---|---|---|---|\n";
    for (const control::Event& event : control::events()) {
        page += "| `" + utf8(event.name) + "` | " + std::to_string(event.dispid) + " | ";
        for (std::size_t i = 0; i < event.parameters.size(); ++i)
            page += (i == 0 ? "`" : ", `") + utf8(event.parameters[i].name) + "`";
        page += " | " + description(event.name) + " |\n";
    }
    addEnumerations(page);
    return page;
}

} // namespace vela::manual
