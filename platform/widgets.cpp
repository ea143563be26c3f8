// The widgets of a form: values put by its logic, acts of a person, and what each of them reports.
#include "platform/widgets.h"

#include "engine/error.h"

#include <algorithm>
#include <utility>

namespace vela::platform {
namespace {

// What is typed into or chosen from stands on the window's colours, all else on the form's.
WidgetLook firstLook(const WidgetRow& row)
{
    WidgetLook look;
    if (isTyped(row.kind) || isCombo(row.kind) || row.kind == WidgetKind::listBox) {
        look.fore = engine::Colour{0x80000008};
        look.back = engine::Colour{0x80000005};
    }
    look.left = row.place.left;
    look.top = row.place.top;
    return look;
}

FontDescription firstFont(const FormLayout& layout, const WidgetRow& row)
{
    FontDescription font;
    font.name = layout.fontName;
    font.size = row.fontSize > 0 ? row.fontSize : layout.fontSize;
    font.bold = row.bold;
    return font;
}

} // namespace

ItemList::ItemList(Widgets& widgets, WidgetId widget, const WidgetRow& row) : widgets_(widgets), widget_(widget)
{
    for (const std::u16string_view item : row.items)
        items_.push_back({std::u16string(item), false});
    if (row.kind == WidgetKind::tabStrip && !items_.empty())
        chosen_ = 0;
}

void ItemList::check(int index) const
{
    if (index < 0 || index >= count())
        engine::raise(engine::error_number::invalidPropertyValue);
}

void ItemList::add(std::u16string_view item)
{
    items_.push_back({std::u16string(item), false});
    if (widgets_.display_)
        widgets_.display_->itemAdded(widgets_.at(widget_));
}

void ItemList::remove(int index)
{
    check(index);
    items_.erase(items_.begin() + index);
    if (chosen_ == index)
        chosen_ = -1;
    else if (chosen_ > index)
        --chosen_;
    if (widgets_.display_)
        widgets_.display_->itemRemoved(widgets_.at(widget_), index);
}

void ItemList::clear()
{
    items_.clear();
    chosen_ = -1;
    Widget& widget = widgets_.mutableAt(widget_);
    widget.text.clear();
    if (widgets_.display_)
        widgets_.display_->itemsCleared(widget);
}

const std::u16string& ItemList::at(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].text;
}

int ItemList::indexOf(std::u16string_view item) const
{
    const auto found = std::ranges::find(items_, item, &Item::text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

std::u16string ItemList::chosenText() const
{
    return chosen_ >= 0 ? at(chosen_) : std::u16string();
}

void ItemList::choose(int index)
{
    if (index != -1)
        check(index);
    chosen_ = index;
    for (int i = 0; i < count(); ++i)
        items_[static_cast<std::size_t>(i)].selected = i == index;
    if (widgets_.display_)
        widgets_.display_->showChoice(widgets_.at(widget_));
    widgets_.chose(widget_);
}

bool ItemList::selected(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].selected;
}

void ItemList::select(int index, bool on)
{
    check(index);
    items_[static_cast<std::size_t>(index)].selected = on;
    if (widgets_.display_)
        widgets_.display_->showSelected(widgets_.at(widget_), index);
}

void ItemList::forgetChoice()
{
    if (std::exchange(chosen_, -1) >= 0 && widgets_.display_)
        widgets_.display_->showChoice(widgets_.at(widget_));
}

Widgets::Widgets(const FormLayout& layout, const FormEvents& events, WidgetDisplay* display)
    : layout_(layout), events_(events), display_(display)
{
    widgets_.reserve(layout.rows.size());
    for (const WidgetRow& row : layout.rows) {
        Widget& widget = widgets_.emplace_back();
        widget.row = &row;
        widget.id = WidgetId{static_cast<int>(widgets_.size()) - 1};
        widget.look = firstLook(row);
        widget.font = firstFont(layout, row);
        if (hasItems(row.kind))
            widget.list = std::make_unique<ItemList>(*this, widget.id, row);
        else
            widget.text = row.caption;
    }
}

const Widget& Widgets::at(WidgetId widget) const
{
    if (widget.value < 0 || widget.value >= static_cast<int>(widgets_.size()))
        engine::raise(engine::error_number::subscriptOutOfRange);
    return widgets_[static_cast<std::size_t>(widget.value)];
}

Widget& Widgets::mutableAt(WidgetId widget)
{
    return const_cast<Widget&>(at(widget));
}

std::u16string Widgets::text(WidgetId widget) const
{
    const Widget& found = at(widget);
    return found.kind() == WidgetKind::dropDownList ? found.list->chosenText() : found.text;
}

void Widgets::putText(WidgetId widget, std::u16string_view text)
{
    Widget& found = mutableAt(widget);
    if (found.kind() == WidgetKind::dropDownList) {
        const int item = found.list->indexOf(text);
        found.list->check(item);
        return found.list->choose(item);
    }
    if (text == found.text)
        return;
    found.text = text;
    if (found.list)
        found.list->forgetChoice(); // a text that is typed is no choice from the list
    if (display_)
        display_->showText(found);
    if (isTyped(found.kind()))
        events_.changed(widget);
}

void Widgets::typed(WidgetId widget, std::u16string text, int chosen)
{
    Widget& found = mutableAt(widget);
    if (text == found.text)
        return;
    found.text = std::move(text);
    if (found.list)
        found.list->adoptChoice(chosen);
    events_.changed(widget);
}

void Widgets::check(WidgetId widget, bool on)
{
    Widget& found = mutableAt(widget);
    if (found.checked == on)
        return;
    putChecked(found, on);
    events_.clicked(widget);
}

void Widgets::press(WidgetId widget)
{
    Widget& found = mutableAt(widget);
    if (found.kind() == WidgetKind::checkBox)
        putChecked(found, !found.checked);
    else if (found.kind() == WidgetKind::optionButton)
        putChecked(found, true);
    events_.clicked(widget);
}

// The other options of its frame are no longer chosen; they report nothing.
void Widgets::putChecked(Widget& widget, bool on)
{
    const auto put = [this](Widget& turned, bool checked) {
        turned.checked = checked;
        if (display_)
            display_->showCheck(turned);
    };
    if (on && widget.kind() == WidgetKind::optionButton)
        for (Widget& other : widgets_)
            if (other.kind() == WidgetKind::optionButton && other.row->parent == widget.row->parent &&
                &other != &widget)
                put(other, false);
    put(widget, on);
}

ItemList& Widgets::items(WidgetId widget)
{
    const Widget& found = at(widget);
    if (!found.list)
        engine::raise(engine::error_number::unsupportedMember);
    return *found.list;
}

// A choice made in an editable combo is its text.
void Widgets::chose(WidgetId widget)
{
    Widget& found = mutableAt(widget);
    if (found.kind() == WidgetKind::comboBox)
        found.text = found.list->chosenText();
    if (found.kind() == WidgetKind::tabStrip && display_)
        display_->showVisibility();
    events_.clicked(widget);
}

void Widgets::enable(WidgetId widget, bool on)
{
    Widget& found = mutableAt(widget);
    found.enabled = on;
    if (display_)
        display_->showEnabled(found);
}

bool Widgets::visible(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (!found.visible || found.row->parent.empty())
        return found.visible;
    const WidgetId frame = findWidget(layout_, found.row->parent);
    return !frame || visible(frame);
}

bool Widgets::showing(const Widget& widget) const
{
    if (!visible(widget.id))
        return false;
    const auto strip = std::ranges::find(widgets_, WidgetKind::tabStrip, &Widget::kind);
    return widget.row->tab < 0 || strip == widgets_.end() || strip->list->chosen() == widget.row->tab;
}

void Widgets::show(WidgetId widget, bool on)
{
    Widget& found = mutableAt(widget);
    if (std::exchange(found.visible, on) != on && display_)
        display_->showVisibility();
}

void Widgets::putLook(WidgetId widget, const WidgetLook& look)
{
    Widget& found = mutableAt(widget);
    if (look == found.look)
        return;
    const WidgetLook before = std::exchange(found.look, look);
    if (display_)
        display_->showLook(found, before);
}

void Widgets::putFont(WidgetId widget, const FontDescription& font)
{
    Widget& found = mutableAt(widget);
    found.font = font;
    if (display_)
        display_->showFont(found);
}

void Widgets::putBackColour(engine::Colour colour)
{
    back_ = colour;
    if (display_)
        display_->showBackColour();
}

bool Widgets::mayTakeFocus(WidgetId widget) const
{
    const Widget& found = at(widget);
    return found.enabled && visible(widget) && takesFocus(found.kind());
}

void Widgets::focusArrived(WidgetId widget)
{
    if (widget == focused_)
        return;
    const engine::Alive alive(life_);
    if (const WidgetId left = std::exchange(focused_, widget))
        events_.lostFocus(left);
    if (alive && focused_ == widget)
        events_.gotFocus(widget);
}

} // namespace vela::platform
