// Keys: navigation and erasing on the way down, the filter in between, the caret's next prompt on the way up. Paste,
// cut, undo and redo follow the same rules, in the field's own history.
#include "control/typing.h"

#include "control/draft.h"
#include "control/error_log.h"
#include "control/internal.h"
#include "engine/field/keystroke.h"
#include "engine/text/characters.h"

#include <algorithm>

namespace vela::control {

namespace key_code = engine::key_code;

namespace {

constexpr char16_t carriageReturn = u'\r';
constexpr char16_t lineFeed = u'\n';
constexpr std::u16string_view lineBreak = u"\r\n";

constexpr bool isLetterOrDigit(char16_t unit) noexcept
{
    return engine::isLetter(unit) || engine::isDigit(unit);
}

// Does the text, literals included, lie on the mask from `start` on? Only then may a literal letter or digit of the
// mask ("+55 (__)") be passed over instead of typed. Surplus at the end does not matter.
bool liesOnMask(std::u16string_view text, std::size_t start, const engine::MaskSettings& settings)
{
    const std::u16string_view mask = settings.mask.substr(std::min(start, settings.mask.size()));
    bool namedLiteral = false;
    for (std::size_t i = 0; i < std::min(text.size(), mask.size()); ++i) {
        const bool input = settings.promptChar == mask.substr(i, 1);
        if (input ? !isLetterOrDigit(text[i]) : text[i] != mask[i])
            return false;
        namedLiteral = namedLiteral || (!input && isLetterOrDigit(mask[i]));
    }
    return namedLiteral;
}

// Where the run of literals just before the caret begins, because a pasted text may begin with those literals.
std::size_t literalRunBefore(std::size_t caret, const engine::MaskSettings& settings)
{
    std::size_t start = std::min(caret, settings.mask.size());
    while (start > 0 && settings.promptChar != settings.mask.substr(start - 1, 1))
        --start;
    return start;
}

} // namespace

void Typing::keyDown(int& code, int& shift)
{
    context_.hear([&] {
        keypadDecimal_ = code == key_code::keypadDecimal;
        keyDownByType(code);
        if (context_.settings.upTab && code == key_code::down)
            // Oddity: Down sends a Tab key-down without its key-up; a key-up would raise KeyUp in the next field.
            context_.environment.desktop.keyDown(key_code::tab);
        if (context_.settings.upTab && code == key_code::up)
            context_.environment.desktop.sendKeys(u"+{TAB}");
        auto told = static_cast<std::int16_t>(code);
        auto toldShift = static_cast<std::int16_t>(shift);
        context_.host.raiseKeyDown(told, toldShift);
        code = told;
        shift = toldShift;
    });
}

void Typing::keyDownByType(int code)
{
    if (context_.settings.textType == TipoText::Numerico && code == key_code::f2 &&
        context_.settings.showButtonCalculadora)
        openPopup();
    else if (context_.masked())
        sKeyDown(code);
}

// Delete and Backspace put prompts back: the locked box erases nothing itself.
void Typing::sKeyDown(int code)
{
    context_.trapToLog(label::keyDown, [&] {
        if (code != key_code::del && code != key_code::backspace) {
            static_cast<void>(context_.box().textLength()); // a failing box is logged with every key
            return;
        }
        Context::Scratch text(context_);
        context_.readText(*text);
        const platform::Selection selection = context_.box().selection();
        const auto erasure =
            engine::eraseInMask(code, selection.start, selection.length, context_.maskSettings(), *text);
        if (!erasure)
            return;
        if (erasure->written)
            content_.writeText(*text, Writer::keys);
        context_.box().select({erasure->caret, 0});
    });
}

void Typing::keyPress(int& key)
{
    context_.hear([&] { key = filterKey(plainKey(key)); });
}

// A control character such as Esc raises KeyPress only: it is no text, so no rule of the field applies to it.
void Typing::controlPress(int& key)
{
    context_.hear([&] {
        int told = key;
        if (!raiseKeyPress(told) || told == 0)
            key = 0;
    });
}

// Full-width digits count as digits where digits are wanted; the keypad's decimal key gives the field's symbol.
int Typing::plainKey(int key) const noexcept
{
    constexpr int fullWidthZero = 0xFF10;
    constexpr int fullWidthNine = 0xFF19;
    const bool number = context_.settings.textType == TipoText::Numerico;
    if ((number || context_.masked()) && key >= fullWidthZero && key <= fullWidthNine)
        return key - fullWidthZero + u'0';
    if (number && keypadDecimal_ && context_.settings.displayDecimal != 0 && (key == u',' || key == u'.'))
        return context_.settings.displayDecimal;
    return key;
}

// A key typed at the box, or pasted into the draft: its plan before KeyPress, the event, what comes after it.
int Typing::filterKey(int key, Draft* draft)
{
    const engine::Alive alive(context_.life);
    for (auto turn = engine::KeyTurn::first;; turn = engine::KeyTurn::second) {
        const engine::KeyPlan plan = draft != nullptr ? planKey(key, turn, *draft) : planKey(key, turn);
        key = plan.key;
        if (!alive || (plan.press && !raiseKeyPress(key)))
            return 0;
        if (plan.after == engine::AfterPress::tab)
            tabBehind(key, draft);
        if (plan.after != engine::AfterPress::enter)
            return key;
        switch (engine::enterMeans(keystrokeSettings())) {
        case engine::EnterMeans::tab: context_.environment.desktop.keyDown(key_code::tab); return 0;
        case engine::EnterMeans::nothing: return 0;
        case engine::EnterMeans::line: break;
        }
    }
}

// Reads of the box what the key's rule needs and writes what the rule says. A failing box refuses the key of a number
// and lets that of a mask pass.
engine::KeyPlan Typing::planKey(int key, engine::KeyTurn turn)
{
    const engine::KeystrokeSettings settings = keystrokeSettings();
    const engine::KeyNeeds needs = engine::needsOf(key, settings, turn);
    const bool mask = context_.masked();
    Context::Scratch text(context_);
    engine::KeyBox seen;
    if (needs.room || needs.text) {
        const platform::Selection selection = context_.box().selection();
        seen.caret = selection.start;
        seen.selected = selection.length;
    }
    if (needs.room) {
        seen.maxLength = context_.box().traits().maxLength;
        if (seen.maxLength >= 1 && seen.selected == 0)
            seen.length = context_.box().textLength();
    }
    if (needs.text) {
        if (const auto failure = engine::trapped([&] { context_.readText(*text); }))
            logKeyFailure(*failure, mask);
        else
            seen.text = &*text;
    }
    const engine::KeyPlan plan = engine::planKey(key, settings, seen, turn);
    const engine::Alive alive(context_.life);
    const auto failure = engine::trapped([&] {
        if (plan.writtenCaret) {
            content_.writeText(*text, Writer::keys);
            context_.box().select({*plan.writtenCaret, 0});
        }
        if (plan.promptCaret)
            context_.box().select({*plan.promptCaret, 0});
    });
    if (failure && alive)
        logKeyFailure(*failure, mask);
    return plan;
}

void Typing::logKeyFailure(const engine::Error& failure, bool mask)
{
    if (!mask)
        context_.log(failure, label::number);
    else if (failure.number != 0 && failure.number != engine::error_number::invalidPropertyValue)
        context_.log(failure, label::mask);
}

void Typing::tabBehind(int key, Draft* draft)
{
    if (!context_.settings.autoTab)
        return;
    Context::Scratch text(context_);
    engine::KeyBox seen{.text = &*text};
    if (draft != nullptr) {
        seen = draft->seen();
    } else {
        if (context_.masked())
            context_.readText(*text);
        seen.caret = context_.box().selection().start;
        seen.maxLength = context_.box().traits().maxLength;
    }
    if (engine::tabFollows(key, keystrokeSettings(), seen))
        context_.environment.desktop.sendKeys(u"{TAB}");
}

// The host's handler may change the key and the settings, and may destroy the control.
bool Typing::raiseKeyPress(int& key)
{
    const engine::Alive alive(context_.life);
    auto told = static_cast<std::int16_t>(key);
    context_.host.raiseKeyPress(told);
    key = static_cast<std::uint16_t>(told);
    return static_cast<bool>(alive);
}

void Typing::keyUp(int code, int shift)
{
    context_.hear([&] {
        auto told = static_cast<std::int16_t>(code);
        auto toldShift = static_cast<std::int16_t>(shift);
        const engine::Alive alive(context_.life);
        context_.host.raiseKeyUp(told, toldShift);
        if (!alive || told != key_code::right || !context_.masked())
            return;
        if (const auto caret = engine::nextInputPosition(context_.box().selection().start, context_.maskSettings()))
            context_.box().select({*caret, 0});
    });
}

// Opening reports its own failures; free text and masks have no pop-up.
void Typing::openPopup()
{
    const engine::Alive alive(context_.life);
    if (context_.settings.textType == TipoText::Numerico)
        context_.popups.openCalculator(owner_);
    else if (context_.settings.textType == TipoText::Data)
        context_.popups.openCalendar(owner_);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

engine::KeystrokeSettings Typing::keystrokeSettings() const
{
    return {.textType = context_.settings.textType,
            .tipoLetra = context_.settings.tipoLetra,
            .simbolDecExib = context_.settings.simbolDecExib,
            .displayDecimal = viewOf(context_.settings.displayDecimal),
            .qtdCasasDec = context_.settings.qtdCasasDec,
            .enterAsTab = context_.settings.enterAsTab,
            .multLine = context_.settings.multLine,
            .maskToNumeric = context_.settings.maskToNumeric,
            .textoLivre = context_.settings.textoLivre,
            .autoTab = context_.settings.autoTab,
            .aceitaNegativos = context_.settings.aceitaNegativos,
            .caractLiberados = context_.settings.caractLiberados,
            .mask = context_.maskSettings()};
}

void Typing::changed(const platform::Edit& edit)
{
    context_.hear([&] {
        const Writer writer = content_.writer();
        keep(edit);
        trap(
            context_.life,
            [&](int& step) {
                step = 1;
                context_.raise(&platform::ControlHost::raiseChange);
                step = 2;
                if (!context_.liveNumber() || (writer != Writer::person && writer != Writer::host))
                    return;
                step = 3;
                reformatLive();
            },
            [&](const engine::Error& failure) {
                context_.showBox(platform::BoxIcon::exclamation, u"", changeFailureText(failure));
            });
    });
}

// Re-formats an amount as a cash register does: "0,001" -> "0,01". The caret keeps its distance from the end. The text
// written here is not re-formatted again.
void Typing::reformatLive()
{
    Context::Scratch text(context_);
    Context::Scratch shown(context_);
    context_.readText(*text);
    if (!livePattern_)
        livePattern_ = std::make_unique<engine::LivePattern>();
    const auto caret =
        engine::liveFormat(*text, context_.box().selection().start, context_.numberSettings(), *livePattern_, *shown);
    if (!caret)
        return;
    content_.writeText(*shown, content_.writer() == Writer::host ? Writer::life : Writer::reformat);
    context_.box().select({*caret, 0});
}

// When a key replaces a selection in a full mask, no prompt draws the caret on, so a run of literals is skipped here.
engine::KeyPlan Typing::planKey(int key, engine::KeyTurn turn, Draft& draft)
{
    const engine::KeystrokeSettings settings = keystrokeSettings();
    const bool inMask = context_.masked() && engine::needsOf(key, settings, turn).text;
    if (inMask && draft.selectionBefore.length > 0 && key <= u'z' && isLetterOrDigit(static_cast<char16_t>(key))) {
        const auto next = engine::nextInputPosition(draft.selection.start, settings.mask);
        if (next && *next > draft.selection.start + 1) // a single literal is skipped by the mask engine
            draft.placeCaret(*next);
    }
    const engine::KeyPlan plan = engine::planKey(key, settings, draft.seen(), turn);
    if (const auto caret = plan.promptCaret ? plan.promptCaret : plan.writtenCaret)
        draft.placeCaret(*caret);
    return plan;
}

// One character of a paste; false when the control did not survive it.
bool Typing::typeInto(Draft& draft, char16_t unit)
{
    const engine::Alive alive(context_.life);
    const int key = filterKey(plainKey(unit), &draft);
    if (!alive)
        return false;
    const auto typed = static_cast<char16_t>(key);
    if (key == 0 || !draft.insert(key == carriageReturn ? lineBreak : std::u16string_view(&typed, 1)) ||
        !context_.liveNumber())
        return true;
    if (!livePattern_)
        livePattern_ = std::make_unique<engine::LivePattern>();
    std::u16string shown;
    if (const auto caret =
            engine::liveFormat(draft.text, draft.selection.start, context_.numberSettings(), *livePattern_, shown)) {
        draft.text = shown;
        draft.placeCaret(*caret);
    }
    return true;
}

// Character by character through the filter; what is refused is left out. A line break is one Enter key.
void Typing::paste(std::u16string_view text)
{
    context_.hear([&] {
        Draft draft(context_);
        const engine::MaskSettings mask = context_.maskSettings();
        const std::size_t start = literalRunBefore(static_cast<std::size_t>(draft.selection.start), mask);
        const bool aligned = context_.masked() && liesOnMask(text, start, mask);
        for (std::size_t i = 0; i < text.size(); ++i) {
            char16_t unit = text[i];
            if (unit == 0 || unit == key_code::backspace)
                continue;
            if (unit == lineFeed && i > 0 && text[i - 1] == carriageReturn)
                continue;
            if (unit == lineFeed)
                unit = carriageReturn;
            if (aligned && start + i < context_.settings.mask.size()) {
                const bool input =
                    context_.settings.promptChar == std::u16string_view(context_.settings.mask).substr(start + i, 1);
                if (!input && isLetterOrDigit(unit))
                    continue;
                if (input)
                    draft.placeCaret(static_cast<int>(start + i));
            }
            if (!typeInto(draft, unit))
                return;
        }
        if (draft.text != draft.before)
            content_.writeText(draft.text, Writer::keys);
        if (draft.text != draft.before || draft.selection != draft.selectionBefore)
            context_.box().select(draft.selection);
    });
}

void Typing::cut()
{
    context_.hear([&] {
        if (context_.box().selection().length == 0)
            return;
        if (context_.masked())
            sKeyDown(key_code::del);
        else
            context_.box().insert(u"");
    });
}

void Typing::restore(bool backwards)
{
    if (context_.deaf() || content_.keptHistory() == nullptr || context_.settings.locked ||
        (!context_.masked() && context_.box().traits().locked))
        return;
    whileAlive(context_.life, [&] {
        Context::Scratch text(context_);
        context_.readText(*text);
        const auto selection = backwards ? content_.keptHistory()->undo(*text) : content_.keptHistory()->redo(*text);
        if (!selection)
            return;
        content_.writeText(*text, Writer::history);
        context_.box().select(*selection);
    });
}

// Keeps what a person did, by hand or through the field's rules. An edit that came by other means ends the history.
void Typing::keep(const platform::Edit& edit)
{
    const bool person = content_.writer() == Writer::person;
    if (person && !edit.typed) {
        if (content_.keptHistory() != nullptr)
            content_.keptHistory()->clear();
    } else if (person || content_.writer() == Writer::keys) {
        content_.history().add(edit, false);
    } else if (content_.writer() == Writer::reformat && content_.keptHistory() != nullptr) {
        content_.keptHistory()->add(edit, true);
    }
}

} // namespace vela::control
