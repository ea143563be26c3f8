// A pop-up closes when another window comes to the front, of this program or of another one.
#include "popups/popup_life.h"

#include "popups/foreground_check.h"

namespace vela::popups {

namespace {

constexpr int timerInterval = 100; // milliseconds

} // namespace

PopupLife::PopupLife(platform::Environment& environment, platform::FormFactory& forms,
                     const platform::FormLayout& layout, platform::FormEvents events, PopupRecord& record,
                     platform::WidgetId first, std::u16string_view label)
    : environment_(environment), record_(record), first_(first), label_(label)
{
    events.popup = this;
    form_ = forms.make(layout, events);
    loaded_ = true;
}

void PopupLife::unload()
{
    if (loaded_)
        form_->close();
}

void PopupLife::activated()
{
    const HandlerScope running(record_);
    environment_.desktop.processPendingEvents();
    if (!loaded_)
        return;
    form_->startTimer(timerInterval);
    form_->focus(first_);
}

void PopupLife::deactivated()
{
    const HandlerScope running(record_);
    if (!boxes.anyUp())
        unload();
}

void PopupLife::tick()
{
    const HandlerScope running(record_);
    if (!loaded_ || boxes.anyUp())
        return;
    const platform::WindowId active = environment_.desktop.activeWindow();
    if (active && active != form_->window()) { // another form of the program
        unload();
        return;
    }
    if (owner == nullptr || mayStayOpen(form_->window(), *owner, environment_, label_))
        return;
    unload();
    if (owner != nullptr)
        owner->takePopupFocus();
}

void PopupLife::closed()
{
    const HandlerScope running(record_);
    if (!loaded_)
        return;
    loaded_ = false;
    record_.closed();
}

} // namespace vela::popups
