// Keys: navigation and erasing on the way down, the filter in between, the caret's next prompt on the way up.
#include "control/internal.h"

#include "control/draft.h"
#include "engine/field/keystroke.h"
#include "engine/text/conversions.h"

namespace vela::control {

namespace {

constexpr int keyTab = 9;
constexpr int keyUpArrow = 38;
constexpr int keyRightArrow = 39;
constexpr int keyDownArrow = 40;
constexpr int keyDelete = 46;
constexpr int keyDecimal = 110; // of the numeric keypad
constexpr int keyF2 = 113;

} // namespace

void Vela::keyDown(int& code, int& shift)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        keypadDecimal_ = code == keyDecimal;
        keyDownByType(code);
        if (settings_.upTab && code == keyDownArrow)
            // Oddity: Down sends a Tab key-down without its key-up; a key-up would raise KeyUp in the next field.
            environment_.desktop.keyDown(keyTab);
        if (settings_.upTab && code == keyUpArrow)
            environment_.desktop.sendKeys(u"+{TAB}");
        auto told = static_cast<std::int16_t>(code);
        auto toldShift = static_cast<std::int16_t>(shift);
        host_.raiseKeyDown(told, toldShift);
        code = told;
        shift = toldShift;
    });
}

void Vela::keyDownByType(int code)
{
    if (settings_.textType == TipoText::Numerico && code == keyF2 && settings_.showButtonCalculadora)
        openPopup();
    else if (masked())
        sKeyDown(code);
}

// Delete and Backspace put prompts back: the locked box erases nothing itself.
void Vela::sKeyDown(int code)
{
    trapToLog(label::keyDown, [&] {
        if (code != keyDelete && code != engine::key_code::backspace) {
            static_cast<void>(box().textLength()); // a failing box is logged with every key
            return;
        }
        Scratch text(*this);
        readText(*text);
        const platform::Selection selection = box().selection();
        const auto erasure = engine::eraseInMask(code, selection.start, selection.length, maskSettings(), *text);
        if (!erasure)
            return;
        if (erasure->written)
            writeText(*text, Writer::keys);
        box().select({erasure->caret, 0});
    });
}

void Vela::keyPress(int& key)
{
    if (deaf())
        return;
    whileAlive(life_, [&] { key = filterKey(plainKey(key)); });
}

// A control character such as Esc raises KeyPress only: it is no text, so no rule of the field applies to it.
void Vela::controlPress(int& key)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        int told = key;
        if (!raiseKeyPress(told) || told == 0)
            key = 0;
    });
}

// Full-width digits count as digits where digits are wanted; the keypad's decimal key gives the field's symbol.
int Vela::plainKey(int key) const noexcept
{
    constexpr int fullWidthZero = 0xFF10;
    constexpr int fullWidthNine = 0xFF19;
    const bool number = settings_.textType == TipoText::Numerico;
    if ((number || masked()) && key >= fullWidthZero && key <= fullWidthNine)
        return key - fullWidthZero + u'0';
    if (number && keypadDecimal_ && settings_.displayDecimal != 0 && (key == u',' || key == u'.'))
        return settings_.displayDecimal;
    return key;
}

// A key typed at the box, or pasted into the draft: its plan before KeyPress, the event, what comes after it.
int Vela::filterKey(int key, Draft* draft)
{
    const engine::Alive alive(life_);
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
        case engine::EnterMeans::tab: environment_.desktop.keyDown(keyTab); return 0;
        case engine::EnterMeans::nothing: return 0;
        case engine::EnterMeans::line: break;
        }
    }
}

// Reads of the box what the key's rule needs and writes what the rule says. A failing box refuses the key of a number
// and lets that of a mask pass.
engine::KeyPlan Vela::planKey(int key, engine::KeyTurn turn)
{
    const engine::KeystrokeSettings settings = keystrokeSettings();
    const engine::KeyNeeds needs = engine::needsOf(key, settings, turn);
    const bool mask = masked();
    Scratch text(*this);
    engine::KeyBox seen;
    if (needs.room || needs.text) {
        const platform::Selection selection = box().selection();
        seen.caret = selection.start;
        seen.selected = selection.length;
    }
    if (needs.room) {
        seen.maxLength = box().traits().maxLength;
        if (seen.maxLength >= 1 && seen.selected == 0)
            seen.length = box().textLength();
    }
    if (needs.text) {
        if (const auto failure = engine::trapped([&] { readText(*text); }))
            logKeyFailure(*failure, mask);
        else
            seen.text = &*text;
    }
    const engine::KeyPlan plan = engine::planKey(key, settings, seen, turn);
    const engine::Alive alive(life_);
    const auto failure = engine::trapped([&] {
        if (plan.writtenCaret) {
            writeText(*text, Writer::keys);
            box().select({*plan.writtenCaret, 0});
        }
        if (plan.promptCaret)
            box().select({*plan.promptCaret, 0});
    });
    if (failure && alive)
        logKeyFailure(*failure, mask);
    return plan;
}

void Vela::logKeyFailure(const engine::Error& failure, bool mask)
{
    if (!mask)
        log(failure, label::number);
    else if (failure.number != 0 && failure.number != engine::error_number::invalidPropertyValue)
        log(failure, label::mask);
}

void Vela::tabBehind(int key, Draft* draft)
{
    if (!settings_.autoTab)
        return;
    Scratch text(*this);
    engine::KeyBox seen{.text = &*text};
    if (draft != nullptr) {
        seen = draft->seen();
    } else {
        if (masked())
            readText(*text);
        seen.caret = box().selection().start;
        seen.maxLength = box().traits().maxLength;
    }
    if (engine::tabFollows(key, keystrokeSettings(), seen))
        environment_.desktop.sendKeys(u"{TAB}");
}

// The host's handler may change the key and the settings, and may destroy the control.
bool Vela::raiseKeyPress(int& key)
{
    const engine::Alive alive(life_);
    auto told = static_cast<std::int16_t>(key);
    host_.raiseKeyPress(told);
    key = static_cast<std::uint16_t>(told);
    return static_cast<bool>(alive);
}

void Vela::keyUp(int code, int shift)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        auto told = static_cast<std::int16_t>(code);
        auto toldShift = static_cast<std::int16_t>(shift);
        const engine::Alive alive(life_);
        host_.raiseKeyUp(told, toldShift);
        if (!alive || told != keyRightArrow || !masked())
            return;
        if (const auto caret = engine::nextInputPosition(box().selection().start, maskSettings()))
            box().select({*caret, 0});
    });
}

void Vela::buttonClicked()
{
    if (!life_.ended())
        whileAlive(life_, [&] { openPopup(); });
}

// Opening reports its own failures; free text and masks have no pop-up.
void Vela::openPopup()
{
    const engine::Alive alive(life_);
    if (settings_.textType == TipoText::Numerico)
        popups_.openCalculator(*this);
    else if (settings_.textType == TipoText::Data)
        popups_.openCalendar(*this);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

std::u16string Vela::popupText()
{
    return Text();
}

void Vela::putPopupText(const engine::Value& value)
{
    Text(engine::toText(value, locale()));
    if (!box().hasFocus())
        return;
    enterText();
    enterSelection();
}

void Vela::hideEntryTip()
{
    hideTip();
}

void Vela::takePopupFocus()
{
    box().takeFocus();
}

engine::RectPixels Vela::popupAnchor()
{
    return surface_.screenRect();
}

platform::ParentForm Vela::popupParent()
{
    return host_.parentForm();
}

engine::KeystrokeSettings Vela::keystrokeSettings() const
{
    return {.textType = settings_.textType,
            .letterCase = settings_.tipoLetra,
            .displayDecimal = settings_.simbolDecExib,
            .decimal = viewOf(settings_.displayDecimal),
            .decimals = settings_.qtdCasasDec,
            .enterAsTab = settings_.enterAsTab,
            .multiLine = settings_.multLine,
            .maskToNumeric = settings_.maskToNumeric,
            .freeText = settings_.textoLivre,
            .autoTab = settings_.autoTab,
            .negatives = settings_.aceitaNegativos,
            .allowed = settings_.caractLiberados,
            .mask = maskSettings()};
}

} // namespace vela::control
