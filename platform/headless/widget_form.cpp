// A form's widgets in memory, as the form's logic reads and writes them.
#include "platform/headless/widget_form.h"

#include "platform/headless/widget_list.h"

#include "engine/error.h"

#include <algorithm>
#include <utility>

namespace vela::headless {

using platform::WidgetId;
using platform::WidgetKind;

namespace {

bool hasList(WidgetKind kind) noexcept
{
    return kind == WidgetKind::comboBox || kind == WidgetKind::dropDownList || kind == WidgetKind::listBox ||
           kind == WidgetKind::tabStrip;
}

bool takesFocus(WidgetKind kind) noexcept
{
    return kind != WidgetKind::label && kind != WidgetKind::frame && kind != WidgetKind::preview;
}

} // namespace

bool isTyped(WidgetKind kind) noexcept
{
    return kind == WidgetKind::textBox || kind == WidgetKind::comboBox;
}

WidgetForm::WidgetForm(const platform::FormLayout& layout, platform::FormEvents& events, WidgetForms& forms)
    : layout_(layout), events_(events), forms_(forms), window_{++forms.lastWindow_}
{
    widgets_.reserve(layout.rows.size());
    for (const platform::WidgetRow& row : layout.rows) {
        auto widget = std::make_unique<Widget>();
        widget->row = &row;
        if (hasList(row.kind))
            widget->list = std::make_unique<WidgetList>(*this, WidgetId{static_cast<int>(widgets_.size())});
        else
            widget->text = row.caption;
        widgets_.push_back(std::move(widget));
    }
    forms_.living_.push_back(this);
}

WidgetForm::~WidgetForm()
{
    std::erase(forms_.living_, this);
    forms_.desktop().retire(*this);
}

WidgetForm::Widget& WidgetForm::at(WidgetId widget) const
{
    if (widget.value < 0 || widget.value >= static_cast<int>(widgets_.size()))
        engine::raise(engine::error_number::subscriptOutOfRange);
    return *widgets_[static_cast<std::size_t>(widget.value)];
}

WidgetKind WidgetForm::kindOf(WidgetId widget) const
{
    return at(widget).row->kind;
}

WidgetId WidgetForm::find(std::u16string_view name, int index) const noexcept
{
    return platform::findWidget(layout_, name, index);
}

std::u16string WidgetForm::text(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (found.row->kind != WidgetKind::dropDownList)
        return found.text;
    return found.list->chosen() >= 0 ? found.list->at(found.list->chosen()) : std::u16string();
}

void WidgetForm::putText(WidgetId widget, std::u16string_view text)
{
    forms_.faults().pass();
    Widget& found = at(widget);
    if (isTyped(found.row->kind))
        putTypedText(widget, std::u16string(text));
    else if (found.row->kind == WidgetKind::dropDownList)
        found.list->choose(found.list->indexOf(text));
    else
        found.text = text;
}

// A text that is typed is no choice from the list.
void WidgetForm::putTypedText(WidgetId widget, std::u16string text)
{
    Widget& found = at(widget);
    if (text == found.text)
        return;
    found.text = std::move(text);
    if (found.list)
        found.list->forgetChoice();
    events_.changed(widget);
}

bool WidgetForm::checked(WidgetId widget) const
{
    return at(widget).checked;
}

void WidgetForm::check(WidgetId widget, bool on)
{
    forms_.faults().pass();
    Widget& found = at(widget);
    if (found.checked == on)
        return;
    if (on && found.row->kind == WidgetKind::optionButton)
        chooseOption(widget);
    found.checked = on;
    events_.clicked(widget);
}

// The others of its frame are no longer chosen; they report nothing.
void WidgetForm::chooseOption(WidgetId widget)
{
    const platform::WidgetRow& row = *at(widget).row;
    for (const auto& other : widgets_)
        if (other->row->kind == WidgetKind::optionButton && other->row->parent == row.parent)
            other->checked = false;
}

platform::ItemList& WidgetForm::items(WidgetId widget)
{
    Widget& found = at(widget);
    if (!found.list)
        engine::raise(engine::error_number::unsupportedMember);
    return *found.list;
}

bool WidgetForm::enabled(WidgetId widget) const
{
    return at(widget).enabled;
}

void WidgetForm::enable(WidgetId widget, bool on)
{
    forms_.faults().pass();
    at(widget).enabled = on;
}

bool WidgetForm::visible(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (!found.visible || found.row->parent.empty())
        return found.visible;
    const WidgetId frame = find(found.row->parent);
    return !frame || visible(frame);
}

void WidgetForm::show(WidgetId widget, bool on)
{
    forms_.faults().pass();
    at(widget).visible = on;
}

const platform::WidgetLook& WidgetForm::look(WidgetId widget) const
{
    return at(widget).look;
}

void WidgetForm::putLook(WidgetId widget, const platform::WidgetLook& look)
{
    forms_.faults().pass();
    at(widget).look = look;
}

void WidgetForm::putFont(WidgetId widget, const platform::FontDescription& font)
{
    forms_.faults().pass();
    at(widget).font = font;
}

platform::FontDescription WidgetForm::font(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (found.font)
        return *found.font;
    platform::FontDescription font;
    font.name = layout_.fontName;
    font.size = found.row->fontSize > 0 ? found.row->fontSize : layout_.fontSize;
    font.bold = found.row->bold;
    return font;
}

void WidgetForm::focus(WidgetId widget)
{
    forms_.faults().pass();
    if (acts(widget) && takesFocus(kindOf(widget)))
        raiseFocus(widget);
}

void WidgetForm::raiseFocus(WidgetId widget)
{
    if (widget == focused_)
        return;
    const engine::Alive alive(life_);
    if (const WidgetId left = std::exchange(focused_, widget))
        events_.lostFocus(left);
    if (alive && focused_ == widget)
        events_.gotFocus(widget);
}

void WidgetForm::putBackColour(engine::Colour colour)
{
    forms_.faults().pass();
    back_ = colour;
}

void WidgetForm::startTimer(int milliseconds)
{
    forms_.faults().pass();
    timer_ = milliseconds;
}

void WidgetForm::showPopup(engine::RectPixels place, platform::WindowId)
{
    forms_.faults().pass();
    place_ = place;
    shown_ = true;
    popup_ = true;
    forms_.sink().trace(trace::Opened{layout_.name, place});
    forms_.desktop().activate(this);
}

void WidgetForm::showModal()
{
    forms_.faults().pass();
    const engine::Alive alive(life_);
    shown_ = true;
    forms_.desktop().activate(this);
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
    forms_.desktop().retire(*this);
    if (std::exchange(shown_, false) && popup_)
        forms_.sink().trace(trace::Closed{layout_.name});
    events_.closed();
}

void WidgetForm::tick()
{
    if (timer_ > 0 && !closed_)
        events_.tick();
}

void WidgetForm::becameActive()
{
    if (!closed_)
        events_.activated();
}

void WidgetForm::becameInactive()
{
    if (!closed_)
        events_.deactivated();
}

std::unique_ptr<platform::Form> WidgetForms::make(const platform::FormLayout& layout, platform::FormEvents& events)
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
