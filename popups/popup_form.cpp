// A pop-up closes when another window comes to the front, of this program or of another one.
#include "popups/popup_form.h"

#include "popups/foreground_check.h"

namespace vela::popups {

namespace {

constexpr int timerInterval = 100; // milliseconds

} // namespace

PopupForm::PopupForm(platform::Environment& environment, platform::FormFactory& forms,
                     const platform::FormLayout& layout, PopupRecord& record, std::u16string_view label)
    : environment_(environment), record_(record), form_(forms.make(layout, *this)), label_(label)
{
    loaded_ = true;
}

void PopupForm::discard() noexcept
{
    loaded_ = false; // its window's going away is no closing
    form_.reset();
}

void PopupForm::show(engine::RectPixels place, platform::WindowId parent)
{
    form_->showPopup(place, parent);
}

void PopupForm::unload()
{
    if (loaded_)
        form_->close();
}

void PopupForm::activated()
{
    const HandlerScope running(record_);
    environment_.desktop.processPendingEvents();
    if (!loaded_)
        return; // one of the events closed it
    form_->startTimer(timerInterval);
    focusFirst();
}

void PopupForm::deactivated()
{
    const HandlerScope running(record_);
    if (!boxUp())
        unload();
}

void PopupForm::tick()
{
    const HandlerScope running(record_);
    if (!loaded_ || boxUp())
        return;
    const platform::WindowId active = environment_.desktop.activeWindow();
    if (active && active != form_->window()) { // another form of the program
        unload();
        return;
    }
    if (owner_ == nullptr || mayStayOpen(form_->window(), *owner_, environment_, label_))
        return;
    unload();
    if (owner_ != nullptr)
        owner_->takePopupFocus();
}

void PopupForm::closed()
{
    const HandlerScope running(record_);
    if (!loaded_)
        return;
    loaded_ = false;
    record_.closed();
}

} // namespace vela::popups
