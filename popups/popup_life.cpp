// A pop-up closes when another window comes to the front, of this program or of another one.
#include "popups/popup_life.h"

#include "popups/foreground_check.h"

namespace vela::popups {

namespace {

constexpr int timerInterval = 100; // milliseconds

} // namespace

PopupLife::PopupLife(platform::Environment& environment, platform::FormFactory& forms,
                     const platform::FormLayout& layout, platform::FormEvents& events, PopupRecord& record,
                     std::u16string_view label)
    : environment_(environment), record_(record), label_(label), form_(forms.make(layout, events))
{
    loaded_ = true;
}

void PopupLife::unload()
{
    if (loaded_)
        form_->close();
}

bool PopupLife::activated()
{
    environment_.desktop.processPendingEvents();
    if (loaded_)
        form_->startTimer(timerInterval);
    return loaded_;
}

void PopupLife::deactivated(bool boxUp)
{
    const HandlerScope running(record_);
    if (!boxUp)
        unload();
}

void PopupLife::tick(bool boxUp)
{
    const HandlerScope running(record_);
    if (!loaded_ || boxUp)
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
