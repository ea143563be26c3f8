// The life of the calendar pop-up: loading, picking, keys, and closing when another window comes to the front.
#include "popups/calendario_sdi.h"

#include "popups/calendar_keys.h"
#include "popups/calendar_layout.h"
#include "popups/foreground_check.h"

namespace vela::popups {

namespace {

constexpr int timerInterval = 100; // milliseconds
constexpr HighlightRule highlightRule{10000, u"Vela.IDR", u"Acesso Negado!"};

} // namespace

CalendarioSDI::CalendarioSDI(platform::Environment& environment, platform::FormFactory& forms,
                             const CalendarColours& colours, PopupRecord& record)
    : environment_(environment), record_(record), form_(forms.make(calendarPopupLayout(), *this)),
      calendar_(std::make_unique<CalendarOperations>(environment, *form_, colours, highlightRule))
{
    loaded_ = true;
    calendar_->load();
}

engine::Value CalendarioSDI::IniciaCalendario(const engine::Value& date)
{
    calendar_->start(date);
    return engine::Empty{};
}

engine::Value CalendarioSDI::IncluiDataRealcada(const engine::Value&)
{
    calendar_->countHighlight();
    return engine::Empty{};
}

void CalendarioSDI::putSelected(engine::CivilDate date)
{
    calendar_->grid.select(date);
}

void CalendarioSDI::putMonthIndex(int index)
{
    calendar_->grid.putMonthIndex(index);
    calendar_->view.refresh();
}

void CalendarioSDI::putYearIndex(int index)
{
    calendar_->grid.putYearIndex(index);
    calendar_->view.refresh();
}

void CalendarioSDI::pickDay(int cell)
{
    const HandlerScope running(record_);
    calendar_->grid.clickDay(cell);
    calendar_->view.refresh();
    if (grid().frameCell() < 0)
        return; // no month has been drawn: there was no day to pick
    if (owner_ != nullptr)
        owner_->putPopupText(grid().selectedText());
    unload();
}

void CalendarioSDI::show(engine::RectPixels place, platform::WindowId parent)
{
    form_->showPopup(place, parent);
}

void CalendarioSDI::unload()
{
    if (loaded_)
        form_->close();
}

void CalendarioSDI::clicked(platform::WidgetId widget)
{
    const HandlerScope running(record_);
    if (!loaded_)
        return;
    if (widget == calendar_widget::months)
        calendar_->view.takeMonth();
    else if (widget == calendar_widget::years)
        calendar_->view.takeYear();
    else if (const int cell = calendar_widget::cellOf(widget); cell >= 0)
        pickDay(cell);
}

void CalendarioSDI::keyDown(platform::WidgetId, int& code, int& shift)
{
    const HandlerScope running(record_);
    if (!loaded_)
        return;
    const int key = code;
    if (key == escapeKey && shift == 0) {
        code = 0;
        unload();
    } else if (key == enterKey && shift == 0) {
        code = 0;
        if (grid().frameCell() >= 0)
            pickDay(grid().frameCell());
    } else if (calendar_->view.moveByKey(key, shift)) {
        code = 0;
    }
}

void CalendarioSDI::activated()
{
    const HandlerScope running(record_);
    environment_.desktop.processPendingEvents();
    if (!loaded_)
        return; // one of the events closed it
    if (form_->visible(calendar_widget::months))
        form_->focus(calendar_widget::months);
    form_->startTimer(timerInterval);
}

void CalendarioSDI::deactivated()
{
    const HandlerScope running(record_);
    if (loaded_ && !calendar_->boxes.anyUp())
        unload();
}

void CalendarioSDI::tick()
{
    const HandlerScope running(record_);
    if (!loaded_ || calendar_->boxes.anyUp())
        return;
    const platform::WindowId active = environment_.desktop.activeWindow();
    if (active && active != form_->window()) { // another form of the program
        unload();
        return;
    }
    if (owner_ == nullptr || mayStayOpen(form_->window(), *owner_, environment_, u"Procedimento: CJA"))
        return;
    unload();
    if (owner_ != nullptr)
        owner_->takePopupFocus();
}

void CalendarioSDI::closed()
{
    const HandlerScope running(record_);
    if (!loaded_)
        return;
    loaded_ = false;
    record_.closed();
}

} // namespace vela::popups
