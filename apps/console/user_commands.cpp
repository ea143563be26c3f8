// What a person does at the form: focus, keys, caret, paste, mouse, timers, other windows.
#include "apps/console/key_text.h"
#include "apps/console/session.h"

namespace vela::console {

namespace {

void runFocus(Session& session, Words words)
{
    requireWords(words, 2, 2);
    if (words[1].is(u"none"))
        session.form().focusNone();
    else
        session.form().focus(session.elementOf(words[1]));
}

void press(headless::FormWindow& form, headless::Key key)
{
    if (key.code == headless::virtual_key::tab || key.code == backwardsTab)
        form.tab(key.code == backwardsTab);
    else
        form.key(key);
}

void runKeys(Session& session, Words words)
{
    requireWords(words, 2, 2);
    for (const headless::Key key : keysOf(textOf(words[1]), allKeyNames()))
        press(session.form(), key);
}

void runCaret(Session& session, Words words)
{
    requireWords(words, 2, 3);
    const int start = integerOf(words[1]);
    const int length = words.size() == 3 ? integerOf(words[2]) : 0;
    if (start < 0 || length < 0)
        notACommand("a caret stands at 0 or beyond");
    session.form().placeCaret(start, length);
}

void runPaste(Session& session, Words words)
{
    requireWords(words, 2, 2);
    session.form().pasteIntoBox(textOf(words[1]));
}

void runClick(Session& session, Words words)
{
    requireWords(words, 2, 2);
    session.form().click(session.elementOf(words[1]));
}

void runDoubleClick(Session& session, Words words)
{
    requireWords(words, 2, 2);
    session.form().doubleClick(session.elementOf(words[1]));
}

void runMouse(Session& session, Words words)
{
    requireWords(words, 2, 2);
    if (words[1].is(u"none"))
        session.form().pointAway();
    else
        session.form().pointTo(session.elementOf(words[1]));
}

void runTick(Session& session, Words words)
{
    requireWords(words, 1, 1);
    session.form().tick();
    session.machine().forms.tick();
}

void runButton(Session& session, Words words)
{
    requireWords(words, 2, 2);
    session.fieldOf(words[1]).surface.clickButton();
}

void runOtherWindow(Session& session, Words words)
{
    requireWords(words, 1, 1);
    session.popups().closeAll();
    session.machine().desktop.activate(nullptr);
}

} // namespace

CommandTable userCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"focus", runFocus},   {u"keys", runKeys},
        {u"caret", runCaret},   {u"paste", runPaste},
        {u"click", runClick},   {u"dblclick", runDoubleClick},
        {u"mouse", runMouse},   {u"tick", runTick},
        {u"button", runButton}, {u"other-window", runOtherWindow},
    };
    return commands;
}

} // namespace vela::console
