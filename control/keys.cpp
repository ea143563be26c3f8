// Keys: navigation and erasing on the way down, the filter in between, the caret's next prompt on the way up.
#include "control/typing.h"

#include "control/draft.h"
#include "control/error_log.h"
#include "control/internal.h"
#include "engine/field/keystroke.h"

namespace vela::control {

namespace key_code = engine::key_code;

void Typing::keyDown(int& code, int& shift)
{
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
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
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] { key = filterKey(plainKey(key)); });
}

// A control character such as Esc raises KeyPress only: it is no text, so no rule of the field applies to it.
void Typing::controlPress(int& key)
{
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
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
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
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
            .letterCase = context_.settings.tipoLetra,
            .displayDecimal = context_.settings.simbolDecExib,
            .decimal = viewOf(context_.settings.displayDecimal),
            .decimals = context_.settings.qtdCasasDec,
            .enterAsTab = context_.settings.enterAsTab,
            .multiLine = context_.settings.multLine,
            .maskToNumeric = context_.settings.maskToNumeric,
            .freeText = context_.settings.textoLivre,
            .autoTab = context_.settings.autoTab,
            .negatives = context_.settings.aceitaNegativos,
            .allowed = context_.settings.caractLiberados,
            .mask = context_.maskSettings()};
}

void Typing::changed(const platform::Edit& edit)
{
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
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

} // namespace vela::control
