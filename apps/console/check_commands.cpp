// Expectations: what a script checks as it runs. A failed one is told and counted, and the run goes on.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include "control/property_table.h"

namespace vela::console {

namespace {

// Both as they print: 5 and 5.0 are one value, "5" is another.
void runExpect(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    if (words[2].quoted)
        notACommand("a name is wanted", words[2]);
    const std::u16string& property = words[2].bare;
    const std::string wanted = printedOf(property, valueFor(property, words[3]));
    const std::string found = printedOf(property, control::getProperty(field.control, property));
    if (found != wanted)
        session.failExpectation(toUtf8(field.name() + u"." + property) + " = " + wanted, found);
}

// Judges the command before it; 0 expects that it ended without an error.
void runExpectError(Session& session, Words words)
{
    const int number = integerOf(words[1]);
    const std::optional<engine::Error> error = session.takeError();
    if ((error ? error->number : 0) != number)
        session.failExpectation("error " + std::to_string(number), error ? printed(*error) : "no error");
}

} // namespace

CommandTable checkCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"expect", 4, 4, runExpect,
         "expect NAME PROPERTY VALUE\n"
         "  Checks that the property has the value. A failure is told with both values on standard error and makes\n"
         "  the exit status 4; the script goes on."},
        {u"expect-error", 2, 2, runExpectError,
         "expect-error NUMBER\n"
         "  Checks that the command before it ended with that error (0: with none), which is then an expected one,\n"
         "  with --strict too."},
    };
    return commands;
}

} // namespace vela::console
