// The calculator's form: buttons and keys to the model, the model's answers to the display and the focus.
#include "popups/frm_calculadora.h"

#include "engine/text/conversions.h"
#include "engine/text/decimal_text.h"
#include "engine/text/key_codes.h"
#include "engine/trapped.h"
#include "popups/calculator_layout.h"

namespace vela::popups {

namespace {

namespace widget = calculator_widget;

// The button a character stands for; an id that tests false for any other character.
platform::WidgetId buttonOf(int character) noexcept
{
    switch (character) {
    case u'=': return widget::equals;
    case u'C':
    case u'c': return widget::cancel;
    case u'%': return widget::percent;
    case u'X':
    case u'x':
    case u'*': return widget::operation(2);
    case u'+': return widget::operation(1);
    case u'-': return widget::operation(3);
    case u'.': return widget::decimal;
    case u'/': return widget::operation(0);
    default: break;
    }
    return character >= u'0' && character <= u'9' ? widget::number(character - u'0') : platform::WidgetId{};
}

} // namespace

frmCalculadora::frmCalculadora(platform::Environment& environment, platform::FormFactory& forms, PopupRecord& record)
    : environment_(environment), record_(record),
      life_(environment, forms, calculatorLayout(), {.clicks = this, .keysDown = this, .keys = this}, record,
            widget::equals, u"Procedimento: Calculadora")
{
    load();
}

// A value that a widget refuses (380) is ignored; any other error is shown in a box and ends loading.
void frmCalculadora::load()
{
    constexpr void (frmCalculadora::*steps[])() = {&frmCalculadora::nameButtons, &frmCalculadora::paintDisplay};
    model_.resetForLoad();
    for (const auto step : steps) {
        const auto error = engine::trapped([&] { (this->*step)(); });
        if (!error || error->number == engine::error_number::invalidPropertyValue)
            continue;
        if (error->number == 0)
            return;
        life_.boxes.show(environment_.desktop, platform::BoxIcon::information, u"Vela.Load",
                         engine::decimalText(error->number) + u"-" + error->description);
        return;
    }
}

void frmCalculadora::nameButtons()
{
    for (int at = 0; at < static_cast<int>(calculatorLayout().rows.size()); ++at) {
        if (spokenName({at}).empty())
            continue;
        platform::WidgetLook look = life_.form().look({at});
        look.spokenName = spokenName({at});
        life_.form().putLook({at}, look);
    }
}

void frmCalculadora::paintDisplay()
{
    platform::WidgetLook look = life_.form().look(widget::display);
    look.fore = engine::Colour{0x80000008}; // window text
    look.back = engine::Colour{0x80000005}; // window
    look.opaque = true;
    look.border = true;
    life_.form().putLook(widget::display, look);
}

void frmCalculadora::putDisplay(std::u16string_view text)
{
    life_.form().putText(widget::display, text);
}

std::u16string frmCalculadora::display() const
{
    return life_.form().text(widget::display);
}

void frmCalculadora::clickWithMouse(platform::WidgetId button)
{
    life_.form().focus(button);
    clicked(button);
}

void frmCalculadora::typeCharacter(char16_t character)
{
    int key = character;
    keyPress(life_.form().focused(), key);
}

void frmCalculadora::pressF2()
{
    int code = engine::key_code::f2;
    int shift = 0;
    keyDown(life_.form().focused(), code, shift);
}

void frmCalculadora::show(engine::RectPixels place, platform::WindowId parent)
{
    life_.form().showPopup(place, parent);
    if (life_.isLoaded())
        life_.form().focus(widget::equals); // no activated() comes when it is shown again while it is the active window
}

void frmCalculadora::clicked(platform::WidgetId id)
{
    const HandlerScope running(record_);
    if (!life_.isLoaded())
        return;
    if (widget::isOperator(id))
        operation(id.value);
    else if (widget::isNumber(id))
        digit(id.value - widget::zero.value);
    else if (id == widget::decimal)
        take(model_.decimal(display()));
    else if (id == widget::percent)
        percent();
    else if (id == widget::cancelEntry)
        take(model_.clearEntry());
    else if (id == widget::cancel)
        take(model_.clearAll());
}

void frmCalculadora::digit(int digit)
{
    take(model_.digit(display(), digit));
}

void frmCalculadora::operation(int index)
{
    life_.form().focus(widget::equals);
    const CalculatorAnswer answer = model_.operation(display(), index, locale());
    if (answer.dividedByZero)
        life_.boxes.show(environment_.desktop, platform::BoxIcon::exclamation, u"Tamber Calc",
                         u"Erro, Divisão por zero impossível");
    if (life_.isLoaded())
        putDisplay(answer.display);
}

void frmCalculadora::percent()
{
    take(model_.percent(display(), locale()));
}

void frmCalculadora::take(const CalculatorAnswer& answer)
{
    putDisplay(answer.display);
    if (answer.focus == CalculatorFocus::equals)
        life_.form().focus(widget::equals);
    else if (answer.focus == CalculatorFocus::zero)
        life_.form().focus(widget::zero);
}

void frmCalculadora::keyPress(platform::WidgetId focused, int& key)
{
    const HandlerScope running(record_);
    const platform::WidgetId button = buttonOf(key);
    if (button && (widget::isNumber(focused) || widget::isOperator(focused)))
        clicked(button);
}

void frmCalculadora::keyDown(platform::WidgetId focused, int& code, int& shift)
{
    const HandlerScope running(record_);
    if (!life_.isLoaded())
        return;
    // Oddity: F2 does nothing after a clear button until a digit or operator is pressed; it would write an unwanted 0.
    if (code == engine::key_code::f2) {
        if (widget::isOperator(focused))
            valueToOwner();
    } else if (shift == 0 && conventionalKey(code)) {
        code = 0;
    }
}

// Keys that people expect of a calculator beside its characters.
bool frmCalculadora::conventionalKey(int code)
{
    switch (code) {
    case engine::key_code::enter: operation(widget::equals.value); return true;
    case engine::key_code::escape: unload(); return true;
    case engine::key_code::del: take(model_.clearEntry()); return true;
    case engine::key_code::backspace: take(model_.eraseLast(display())); return true;
    case engine::key_code::keypadDecimal: take(model_.decimal(display())); return true;
    default: return false;
    }
}

// Puts the text first, so that the calculator stays open when that fails.
void frmCalculadora::valueToOwner()
{
    const double value = engine::toDouble(std::u16string_view(display()), locale());
    if (owner() != nullptr)
        owner()->putPopupText(value);
    unload();
}

} // namespace vela::popups
