// What a person does at the form: focus, keys, caret, paste, mouse, timers, other windows.
#include "apps/console/key_text.h"
#include "apps/console/session.h"

namespace vela::console {

namespace {

void runFocus(Session& session, Words words)
{
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
    for (const headless::Key key : keysOf(textOf(words[1]), allKeyNames()))
        press(session.form(), key);
}

void runCaret(Session& session, Words words)
{
    const int start = integerOf(words[1]);
    const int length = words.size() == 3 ? integerOf(words[2]) : 0;
    if (start < 0 || length < 0)
        notACommand("a caret stands at 0 or beyond", words[start < 0 ? 1 : 2]);
    session.form().placeCaret(start, length);
}

void runPaste(Session& session, Words words)
{
    session.form().pasteIntoBox(textOf(words[1]));
}

void runPasteByRules(Session& session, Words words)
{
    session.form().paste(textOf(words[1]));
}

void runClick(Session& session, Words words)
{
    session.form().click(session.elementOf(words[1]));
}

void runDoubleClick(Session& session, Words words)
{
    session.form().doubleClick(session.elementOf(words[1]));
}

void runMouse(Session& session, Words words)
{
    if (words[1].is(u"none"))
        session.form().pointAway();
    else
        session.form().pointTo(session.elementOf(words[1]));
}

void runTick(Session& session, Words)
{
    session.form().tick();
    session.machine().forms.tick();
}

void runButton(Session& session, Words words)
{
    session.fieldOf(words[1]).surface.clickButton();
}

void runOtherWindow(Session& session, Words)
{
    session.popups().closeAll();
    session.machine().desktop.activate(nullptr);
}

} // namespace

CommandTable userCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"focus", 2, 2, runFocus,
         "focus NAME|none\n"
         "  Moves the focus to a control, a plain element or another window."},
        {u"keys", 2, 2, runKeys,
         "keys \"TEXT\"\n"
         "  Types at the focused control: characters, {TAB} +{TAB} {ENTER} {BACKSPACE} {DELETE} {LEFT} {RIGHT} {UP} "
         "{DOWN}\n"
         "  {HOME} {END} {ESC} {F2}, with Control {^Z} {^Y} {^X} {^C} {^V}; {+} {{} {}} stand for themselves."},
        {u"caret", 2, 3, runCaret,
         "caret START [LENGTH]\n"
         "  Places the caret, or selects, in the focused control; 0 is before the first character."},
        {u"paste", 2, 2, runPaste,
         "paste \"TEXT\"\n"
         "  Pastes into the edit box as a plain text box would: whole, cut to fit, without the field's rules."},
        {u"paste-rules", 2, 2, runPasteByRules,
         "paste-rules \"TEXT\"\n"
         "  Pastes as a person does: each character by the field's rules for typing."},
        {u"click", 2, 2, runClick,
         "click NAME\n"
         "  Clicks at the text's end; gives the focus first."},
        {u"dblclick", 2, 2, runDoubleClick,
         "dblclick NAME\n"
         "  Double-clicks at the text's end; gives the focus first."},
        {u"mouse", 2, 2, runMouse,
         "mouse NAME|none\n"
         "  Moves the pointer over a control, or away from all."},
        {u"tick", 1, 1, runTick,
         "tick\n"
         "  One tick of every enabled timer."},
        {u"button", 2, 2, runButton,
         "button NAME\n"
         "  Clicks the button that opens the calendar or the calculator; gives the focus first."},
        {u"other-window", 1, 1, runOtherWindow,
         "other-window\n"
         "  Another top-level window becomes active."},
    };
    return commands;
}

} // namespace vela::console
