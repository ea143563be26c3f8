// The numbered steps of opening the calendar and the calculator.
#include "popups/launching.h"

#include "engine/text/conversions.h"
#include "engine/text/decimal_text.h"
#include "engine/trapped.h"
#include "popups/calendar_grid.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"
#include "popups/grid_dates.h"

namespace vela::popups {

namespace {

struct FailureTexts {
    std::u16string_view heading;
    std::u16string_view hint;
};

constexpr FailureTexts calendarFailure{u"Erro ao Exibir o Calendário !",
                                       u"Info Técnicas: Não é possível exibir o calendário em forms modais"};
constexpr FailureTexts calculatorFailure{u"Erro ao Exibir a Calculadora !",
                                         u"Info Técnicas: Não é possível exibir a calculadora em forms modais"};

// "Erro ao Exibir o Calendário !\r\nLinha do Erro: 4\r\nN° do Erro: 380\r\nDescrição: ( Invalid property value
// )\r\n..."
std::u16string failureText(const FailureTexts& texts, int step, const engine::Error& error)
{
    const std::u16string lineBreak = u"\r\n";
    std::u16string text(texts.heading);
    text += lineBreak + u"Linha do Erro: " + engine::decimalText(step);
    text += lineBreak + u"N° do Erro: " + engine::decimalText(error.number);
    text += lineBreak + u"Descrição: ( " + error.description + u" )";
    text += lineBreak;
    text += texts.hint;
    return text;
}

template <class Steps>
void launch(const platform::Environment& environment, const FailureTexts& texts, const std::function<void()>& discard,
            Steps&& steps)
{
    int step = 0;
    const auto error = engine::trapped([&] { steps(step); });
    if (!error)
        return;
    discard();
    environment.desktop.messageBox(platform::BoxIcon::information, platform::BoxButtons::ok, u"Vela",
                                   failureText(texts, step, *error));
}

engine::RectPixels placeUnder(engine::RectPixels control, int width, int height)
{
    return {control.left, control.bottom(), width, height};
}

// A modeless pop-up cannot be shown over a modal form.
platform::WindowId modelessParent(Owner& owner)
{
    const platform::ParentForm parent = owner.popupParent();
    if (parent.modal)
        throw engine::Error{401, u"Can't show non-modal form when modal form is displayed"};
    return parent.window;
}

engine::CivilDate startingDate(Owner& owner, const platform::Environment& environment)
{
    const engine::Date now = environment.clock.now();
    return tryReadDate(owner.popupText(), environment.locales.locale(), now).value_or(civilToday(now));
}

} // namespace

void launchCalendar(const platform::Environment& environment, Owner& owner, const CalendarLoader& loader)
{
    launch(environment, calendarFailure, loader.discard, [&](int& step) {
        step = 1;
        const engine::RectPixels control = owner.popupAnchor();
        step = 2;
        CalendarioSDI& calendar = loader.load();
        calendar.setOwner(&owner);
        step = 3;
        const engine::CivilDate start = startingDate(owner, environment);
        calendar.putSelected(start);
        step = 4;
        calendar.putMonthIndex(start.month - 1);
        calendar.putYearIndex(start.year - firstYear);
        step = 5;
        const engine::RectPixels place = placeUnder(control, calendarPopupWidth, calendarPopupHeight);
        step = 6;
        const platform::WindowId parent = modelessParent(owner);
        owner.hideEntryTip();
        calendar.show(place, parent);
    });
}

void launchCalculator(const platform::Environment& environment, Owner& owner, const CalculatorLoader& loader)
{
    launch(environment, calculatorFailure, loader.discard, [&](int& step) {
        step = 1;
        const engine::RectPixels control = owner.popupAnchor();
        step = 2;
        frmCalculadora& calculator = loader.load();
        calculator.setOwner(&owner);
        calculator.continueNumber();
        step = 3;
        calculator.handOver(hasDecimals(owner.popupText()));
        step = 4;
        environment.desktop.processPendingEvents();
        if (loader.loaded() != &calculator || calculator.owner() != &owner)
            return; // one of the events took the calculator or its owner away
        const std::u16string text = owner.popupText();
        // Oddity: on an empty field the first digits stand behind the "0." of the calculator; people type decimals
        // that way.
        if (engine::isNumeric(std::u16string_view(text), environment.locales.locale()))
            calculator.putDisplay(text);
        step = 5;
        const engine::RectPixels place = placeUnder(control, calculatorPopupWidth, calculatorPopupHeight);
        step = 6;
        const platform::WindowId parent = modelessParent(owner);
        owner.hideEntryTip();
        calculator.show(place, parent);
    });
}

} // namespace vela::popups
