// Items and choices of a list in memory.
#include "platform/headless/widget_list.h"

#include "engine/error.h"

#include <algorithm>

namespace vela::headless {

WidgetList::WidgetList(WidgetForm& form, platform::WidgetId widget) : form_(form), widget_(widget)
{
    for (const std::u16string_view item : form.layout().rows[static_cast<std::size_t>(widget.value)].items)
        items_.push_back({std::u16string(item), false});
}

void WidgetList::check(int index) const
{
    if (index < 0 || index >= count())
        engine::raise(engine::error_number::invalidPropertyValue);
}

void WidgetList::add(std::u16string_view item)
{
    form_.forms().faults().pass();
    items_.push_back({std::u16string(item), false});
}

void WidgetList::remove(int index)
{
    form_.forms().faults().pass();
    check(index);
    items_.erase(items_.begin() + index);
    if (chosen_ == index)
        chosen_ = -1;
    else if (chosen_ > index)
        --chosen_;
}

void WidgetList::clear()
{
    form_.forms().faults().pass();
    items_.clear();
    chosen_ = -1;
    form_.listCleared(widget_);
}

std::u16string WidgetList::at(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].text;
}

void WidgetList::choose(int index)
{
    form_.forms().faults().pass();
    if (index != -1)
        check(index);
    chosen_ = index;
    for (int i = 0; i < count(); ++i)
        items_[static_cast<std::size_t>(i)].selected = i == index;
    form_.itemChosen(widget_, index >= 0 ? items_[static_cast<std::size_t>(index)].text : std::u16string());
}

bool WidgetList::selected(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].selected;
}

void WidgetList::select(int index, bool on)
{
    form_.forms().faults().pass();
    check(index);
    items_[static_cast<std::size_t>(index)].selected = on;
}

int WidgetList::indexOf(std::u16string_view item) const
{
    const auto found = std::find_if(items_.begin(), items_.end(), [&](const Item& i) { return i.text == item; });
    if (found == items_.end())
        engine::raise(engine::error_number::invalidPropertyValue);
    return static_cast<int>(found - items_.begin());
}

} // namespace vela::headless
