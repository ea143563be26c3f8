// Keys: navigation and erasing on the way down, the filter in between, the caret's next prompt on the way up.
#include "control/internal.h"

#include "control/field_sink.h"
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
        if (history_)
            history_->expecting = false;
        keyDownByType(code);
        if (settings_.upTab && code == keyDownArrow)
            // Oddity: Down sends a Tab key-down without its key-up; a key-up would raise KeyUp in the next field.
            environment_.desktop.keyDown(keyTab);
        if (settings_.upTab && code == keyUpArrow)
            environment_.desktop.sendKeys(u"+{TAB}");
        auto told = static_cast<std::int16_t>(code);
        auto toldShift = static_cast<std::int16_t>(shift);
        const engine::Alive alive(life_);
        host_.raiseKeyDown(told, toldShift);
        code = told;
        shift = toldShift;
        if (alive && !deaf() && code == keyDelete)
            expectErasing(false);
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
        Scratch before(*this);
        readText(*text);
        *before = *text;
        const platform::Selection selection = box().selection();
        const auto erasure = engine::eraseInMask(code, selection.start, selection.length, maskSettings(), *text);
        if (!erasure)
            return;
        if (erasure->written) {
            keepWritten(*before, *text, selection, false);
            writeText(*text, Writer::keys);
        }
        box().select({erasure->caret, 0});
    });
}

void Vela::keyPress(int& key)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        const engine::Alive alive(life_);
        BoxSink sink(*this);
        key = engine::filterKeystroke(plainKey(key), sink);
        if (alive && !deaf())
            expectTyping(key);
    });
}

// A control character such as Esc raises KeyPress only: it is no text, so no rule of the field applies to it.
void Vela::controlPress(int& key)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        auto told = static_cast<std::int16_t>(key);
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

void Vela::validateMask(int& key)
{
    trap(
        life_,
        [&](int&) {
            Scratch text(*this);
            readText(*text);
            const platform::Selection selection = box().selection();
            const engine::MaskStep step = engine::validateMask(key, selection.start, maskSettings(), *text);
            key = step.key;
            if (step.textWritten) {
                const auto at = std::min(text->size(), static_cast<std::size_t>(step.caret)) - 1;
                const View before = step.replaced ? View(&*step.replaced, 1) : View();
                if (before != View(*text).substr(at, 1))
                    history().add(static_cast<int>(at), before, View(*text).substr(at, 1), selection, false);
                writeText(*text, Writer::keys);
                box().select({step.caret, 0});
            }
            if (step.promptCaret)
                box().select({*step.promptCaret, 0});
        },
        [&](const engine::Error& failure) {
            if (failure.number != engine::error_number::invalidPropertyValue)
                log(failure, label::mask);
        });
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
            .promptChar = settings_.promptChar};
}

} // namespace vela::control
