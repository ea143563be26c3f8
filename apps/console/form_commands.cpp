// The form: creating, loading, saving and destroying controls, their properties and methods, and their boxes.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include "platform/headless/property_bag.h"

#include <algorithm>
#include <utility>

namespace vela::console {

namespace {

const std::u16string& bareOf(const Word& word)
{
    if (word.quoted)
        notACommand("a name is wanted", word);
    return word.bare;
}

void runNew(Session& session, Words words)
{
    if (words.size() == 3 && !words[2].is(u"design"))
        notACommand("design or nothing is wanted", words[2]);
    session.addField(session.freshName(words[1]), words.size() == 2).control.initNew();
}

// KEY=VALUE, the value for the property of that name where there is one.
std::pair<std::u16string, engine::Value> entryOf(const Word& word)
{
    const std::size_t equals = word.bare.find(u'=');
    if (equals == 0 || equals == std::u16string::npos)
        notACommand("KEY=VALUE is wanted", word);
    std::u16string key = word.bare.substr(0, equals);
    engine::Value value = valueFor(key, {word.bare.substr(equals + 1), word.text, word.quoted});
    return {std::move(key), std::move(value)};
}

void runLoad(Session& session, Words words)
{
    const std::u16string& name = session.freshName(words[1]);
    const bool design = words.size() > 2 && words[2].is(u"design");
    headless::PropertyBag bag(&session.machine().faults);
    for (const Word& word : words.subspan(design ? 3 : 2)) {
        auto [key, value] = entryOf(word);
        bag.put(key, std::move(value));
    }
    session.addField(name, !design).control.load(bag);
}

void runSave(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    headless::PropertyBag bag(&session.machine().faults);
    field.control.save(bag);
    for (const auto& [key, value] : bag.entries())
        session.printLine(toUtf8(field.name()) + " " + quoted(key) + " = " + printedOf(key, value));
}

void runReload(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    headless::PropertyBag bag(&session.machine().faults);
    field.control.save(bag);
    session.replaceField(field).control.load(bag);
}

void runDestroy(Session& session, Words words)
{
    session.destroyField(session.fieldOf(words[1]));
}

void runPlain(Session& session, Words words)
{
    session.form().addPlain(session.freshName(words[1]));
}

void runSet(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    const std::u16string& property = bareOf(words[2]);
    const engine::Value value = valueFor(property, words[3]);
    control::putProperty(field.control, property, value);
}

void runGet(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    const std::u16string& property = bareOf(words[2]);
    const engine::Value value = control::getProperty(field.control, property);
    session.printLine(toUtf8(field.name()) + "." + toUtf8(property) + " = " + printedOf(property, value));
}

void runCall(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    const auto method =
        std::ranges::find_if(control::methods(), [&](const control::Method& m) { return words[2].is(m.name); });
    if (method == control::methods().end())
        notACommand("no such method", words[2], namesOf(control::methods()));
    method->call(field.control);
}

void runFail(Session& session, Words words)
{
    using headless::BoxOperation;
    static constexpr std::pair<std::u16string_view, BoxOperation> operations[] = {
        {u"text", BoxOperation::text},
        {u"put-text", BoxOperation::putText},
        {u"put-caret", BoxOperation::putCaret},
        {u"put-colour", BoxOperation::putColour},
    };
    Field& field = session.fieldOf(words[1]);
    const auto operation =
        std::ranges::find_if(operations, [&](const auto& candidate) { return words[2].is(candidate.first); });
    if (operation == std::end(operations))
        notACommand("no such operation", words[2], {u"text", u"put-text", u"put-caret", u"put-colour"});
    const int number = integerOf(words[3]);
    field.surface.activeBox().failNext(operation->second, engine::Error{number, textOf(words[4])});
}

// Raises 91 for a control that has let go of its box.
void requireBox(Field& field)
{
    static_cast<void>(control::getProperty(field.control, u"hwnd"));
}

void runShow(Session& session, Words words)
{
    Field& field = session.fieldOf(words[1]);
    requireBox(field);
    const headless::EditBox& box = field.surface.activeBox();
    const platform::EditTraits& traits = box.traits();
    const bool multiLine = box.kind() == platform::EditBoxKind::multiLine;
    session.printLine(
        toUtf8(field.name()) + " text=" + quoted(box.shownText()) + " caret=" + std::to_string(box.selection().start) +
        " sel=" + std::to_string(box.selection().length) + " fore=" + printed(box.colours().fore) +
        " back=" + printed(box.colours().back) + " max=" + std::to_string(traits.maxLength) +
        " align=" + std::to_string(static_cast<int>(traits.alignment)) + " locked=" + printed(traits.locked) +
        " enabled=" + printed(traits.enabled) + " button=" + printed(field.surface.look().button) +
        " box=" + (multiLine ? "txtMultLine" : "txtNormal"));
}

} // namespace

CommandTable formCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"new", 2, 3, runNew,
         "new NAME [design]\n"
         "  Makes a control with the settings of a new one, next in the tab order; in design mode where asked for."},
        {u"load", 2, anyNumber, runLoad,
         "load NAME [design] KEY=VALUE...\n"
         "  Makes a control from saved settings that hold just these keys."},
        {u"save", 2, 2, runSave,
         "save NAME\n"
         "  Prints the settings that are kept, in the order in which they are written."},
        {u"reload", 2, 2, runReload,
         "reload NAME\n"
         "  Saves, destroys and loads the control again."},
        {u"destroy", 2, 2, runDestroy,
         "destroy NAME\n"
         "  Ends the control."},
        {u"plain", 2, 2, runPlain,
         "plain NAME\n"
         "  Puts a plain element of the host on the form, next in the tab order."},
        {u"set", 4, 4, runSet,
         "set NAME PROPERTY VALUE\n"
         "  Puts a property. Values: True, 12, 12.5, &H00BBGGRR, \"text\", #2024-02-29#, Empty, or an enumerator's "
         "name."},
        {u"get", 3, 3, runGet,
         "get NAME PROPERTY\n"
         "  Prints a property."},
        {u"call", 3, 3, runCall,
         "call NAME About|DestruirToolTip|LimparMemoria\n"
         "  Calls a method."},
        {u"fail", 5, 5, runFail,
         "fail NAME text|put-text|put-caret|put-colour NUMBER \"DESCRIPTION\"\n"
         "  The edit box's next operation of that kind fails with that error, once."},
        {u"show", 2, 2, runShow,
         "show NAME\n"
         "  Prints the edit box: text, caret, selection, colours, limits, state."},
    };
    return commands;
}

} // namespace vela::console
