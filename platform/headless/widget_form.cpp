// A form in memory: showing, focus, timer and closing, and what a person does to its widgets.
#include "platform/headless/widget_form.h"

#include <algorithm>
#include <utility>

namespace vela::headless {

using platform::WidgetId;

WidgetForm::WidgetForm(const platform::FormLayout& layout, const platform::FormEvents& events, WidgetForms& forms)
    : widgets_(layout, events), forms_(forms), window_{++forms.lastWindow_}
{
    forms_.living_.push_back(this);
}

WidgetForm::~WidgetForm()
{
    std::erase(forms_.living_, this);
    forms_.desktop_.retire(*this);
}

platform::Widgets& WidgetForm::widgets()
{
    forms_.faults_.pass();
    return widgets_;
}

WidgetId WidgetForm::find(std::u16string_view name, int index) const noexcept
{
    return platform::findWidget(layout(), name, index);
}

void WidgetForm::focus(WidgetId widget)
{
    forms_.faults_.pass();
    if (widgets_.mayTakeFocus(widget))
        widgets_.focusArrived(widget);
}

void WidgetForm::startTimer(int milliseconds)
{
    forms_.faults_.pass();
    timer_ = milliseconds;
}

void WidgetForm::showPopup(engine::RectPixels place, platform::WindowId)
{
    forms_.faults_.pass();
    place_ = place;
    shown_ = true;
    popup_ = true;
    forms_.sink_.trace(trace::Opened{layout().name, place});
    forms_.desktop_.activate(this);
}

void WidgetForm::showModal()
{
    forms_.faults_.pass();
    const engine::Alive alive(life_);
    shown_ = true;
    forms_.desktop_.activate(this);
    if (alive && forms_.modalScript)
        forms_.modalScript(*this);
    if (alive)
        close();
}

void WidgetForm::close()
{
    if (std::exchange(closed_, true))
        return;
    timer_ = 0;
    forms_.desktop_.retire(*this);
    if (std::exchange(shown_, false) && popup_)
        forms_.sink_.trace(trace::Closed{layout().name});
    if (events_.popup)
        events_.popup->closed();
}

void WidgetForm::tick()
{
    if (timer_ > 0 && !closed_ && events_.popup)
        events_.popup->tick();
}

void WidgetForm::becameActive()
{
    if (!closed_ && events_.popup)
        events_.popup->activated();
}

void WidgetForm::becameInactive()
{
    if (!closed_ && events_.popup)
        events_.popup->deactivated();
}

bool WidgetForm::moveFocus(WidgetId widget)
{
    if (!acts(widget))
        return false;
    focus(widget);
    return true;
}

bool WidgetForm::click(WidgetId widget)
{
    if (!acts(widget))
        return false;
    widgets_.press(widget);
    return true;
}

bool WidgetForm::doubleClick(WidgetId widget)
{
    if (!acts(widget))
        return false;
    events_.doubleClicked(widget);
    return true;
}

bool WidgetForm::type(WidgetId widget, Key key)
{
    if (!acts(widget))
        return false;
    const engine::Alive alive(life_);
    int code = key.code;
    int shift = 0;
    events_.keyDown(widget, code, shift);
    const bool swallowed = key.code != 0 && code == 0;
    if (!alive || swallowed || !key.pressed)
        return true;
    const char16_t character = filter(widget, key.character);
    if (alive && character != 0 && platform::isTyped(widgets_.at(widget).kind()))
        typeCharacter(widget, character);
    return true;
}

void WidgetForm::typeCharacter(WidgetId widget, char16_t character)
{
    std::u16string text = widgets_.text(widget);
    if (character == virtual_key::backspace) {
        if (!text.empty())
            text.pop_back();
    } else if (character != virtual_key::enter) {
        text += character;
    }
    widgets_.typed(widget, std::move(text));
}

char16_t WidgetForm::filter(WidgetId widget, char16_t key)
{
    int code = key;
    events_.keyPress(widget, code);
    return static_cast<char16_t>(code);
}

bool WidgetForm::enterText(WidgetId widget, std::u16string_view text)
{
    if (!acts(widget))
        return false;
    const engine::Alive alive(life_);
    std::u16string accepted;
    for (const char16_t unit : text) {
        const char16_t key = filter(widget, unit);
        if (!alive)
            return true;
        if (key != 0)
            accepted += key;
    }
    widgets_.typed(widget, std::move(accepted));
    return true;
}

bool WidgetForm::choose(WidgetId widget, int index)
{
    if (!acts(widget))
        return false;
    widgets_.items(widget).choose(index);
    return true;
}

bool WidgetForm::turnItem(WidgetId widget, int index, bool on)
{
    if (!acts(widget))
        return false;
    platform::ItemList& list = widgets_.items(widget);
    if (list.selected(index) == on)
        return true;
    list.select(index, on);
    widgets_.chose(widget);
    return true;
}

std::unique_ptr<platform::Form> WidgetForms::make(const platform::FormLayout& layout,
                                                  const platform::FormEvents& events)
{
    faults_.pass();
    return std::make_unique<WidgetForm>(layout, events, *this);
}

WidgetForm* WidgetForms::find(std::u16string_view layoutName) const noexcept
{
    const auto found = std::find_if(living_.rbegin(), living_.rend(), [&](const WidgetForm* form) {
        return form->layout().name == layoutName && !form->isClosed();
    });
    return found != living_.rend() ? *found : nullptr;
}

void WidgetForms::tick()
{
    const std::vector<WidgetForm*> all = living_; // a handler may destroy some
    for (WidgetForm* form : all)
        if (std::find(living_.begin(), living_.end(), form) != living_.end())
            form->tick();
}

} // namespace vela::headless
