// The commands and the properties, told by the program itself.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include "control/property_table.h"

#include <algorithm>
#include <iterator>

namespace vela::console {

namespace {

using control::Property;
using control::PropertyType;

void printLines(Session& session, std::string_view text)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        session.printLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

// How each command is written: the lines of its help that are not indented.
void printCommands(Session& session)
{
    for (const Command& command : allCommands())
        printLines(session, command.help.substr(0, command.help.find("\n  ")));
    session.printLine("help COMMAND and help PROPERTY tell more; help properties lists the properties");
}

std::string_view typeName(PropertyType type)
{
    switch (type) {
    case PropertyType::boolean: return "True or False";
    case PropertyType::byte: return "whole number, 0 to 255";
    case PropertyType::integer: return "whole number, 16 bits";
    case PropertyType::longInteger: return "whole number, 32 bits";
    case PropertyType::colour: return "colour, &H00BBGGRR";
    case PropertyType::enumeration: return "one of";
    case PropertyType::text: return "text";
    case PropertyType::font: return "font";
    case PropertyType::variant: return "any value";
    }
    return "";
}

void printProperty(Session& session, const Property& property)
{
    session.printLine(toUtf8(property.name) + ": " + std::string(typeName(property.type())) +
                      (property.access() == control::Access::read ? ", read only" : ""));
    if (control::enumerationOf(property) != nullptr)
        for (const engine::Enumerator& member : control::enumerationOf(property)->members)
            session.printLine("  " + toUtf8(member.name) + " = " + std::to_string(member.value));
    if (!property.help.empty())
        session.printLine("  " + toUtf8(property.help));
}

void printProperties(Session& session)
{
    for (const Property& property : control::properties())
        session.printLine(toUtf8(property.name));
}

void runHelp(Session& session, Words words)
{
    if (words.size() == 1)
        return printCommands(session);
    if (words[1].is(u"properties"))
        return printProperties(session);
    const std::u16string_view name = words[1].quoted ? words[1].text : words[1].bare;
    if (const Command* command = findCommand(name))
        return printLines(session, command->help);
    if (const Property* property = control::findProperty(name))
        return printProperty(session, *property);
    std::vector<std::u16string_view> known = namesOf(control::properties());
    std::ranges::copy(namesOf(allCommands()), std::back_inserter(known));
    notACommand("no such command or property", words[1], known);
}

} // namespace

CommandTable helpCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"help", 1, 2, runHelp,
         "help [COMMAND|PROPERTY|properties]\n"
         "  Without a word, how each command is written; with one, what that command or property is."},
    };
    return commands;
}

} // namespace vela::console
