// Items and choices of lists, kept and shown; what the kinds of widget are.
#include "platform/win32/form_widget.h"

#include "engine/error.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace vela::win32 {

using platform::WidgetKind;

bool isTyped(WidgetKind kind) noexcept
{
    return kind == WidgetKind::textBox || kind == WidgetKind::comboBox;
}

bool isWindow(WidgetKind kind) noexcept
{
    return kind != WidgetKind::label && kind != WidgetKind::frame && kind != WidgetKind::preview;
}

bool takesFocus(WidgetKind kind) noexcept
{
    return isWindow(kind);
}

char16_t accessKeyOf(const Widget& widget) noexcept
{
    if (widget.list || isTyped(widget.kind()))
        return 0;
    if (widget.row->accessKey)
        return widget.row->accessKey;
    const std::u16string_view caption = widget.text;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return caption[i + 1];
        ++i;
    }
    return 0;
}

std::u16string markedCaption(const Widget& widget)
{
    std::u16string marked = widget.text;
    const char16_t key = widget.row->accessKey;
    if (!key || isTyped(widget.kind()))
        return marked;
    std::size_t place = marked.find(key);
    for (std::size_t i = place; i < marked.size(); ++i)
        if (marked[i] == key && (i == 0 || marked[i - 1] == u' ')) {
            place = i;
            break;
        }
    if (place < marked.size())
        marked.insert(place, 1, u'&');
    return marked;
}

std::u16string withoutAccessKey(std::u16string_view caption)
{
    std::u16string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        plain += caption[i];
    }
    return plain;
}

WidgetList::WidgetList(FormWindow& form, Widget& widget) : form_(form), widget_(widget)
{
    for (const std::u16string_view item : widget.row->items)
        items_.push_back({std::u16string(item), false});
    if (widget.kind() == WidgetKind::tabStrip && !items_.empty())
        chosen_ = 0;
}

void WidgetList::check(int index) const
{
    if (index < 0 || index >= count())
        engine::raise(engine::error_number::invalidPropertyValue);
}

void WidgetList::showItem(const Item& item) const
{
    if (!widget_.window)
        return;
    std::u16string text = item.text;
    if (widget_.kind() == WidgetKind::tabStrip) {
        TCITEMW tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = wide(text.data());
        SendMessageW(widget_.window, TCM_INSERTITEMW, SendMessageW(widget_.window, TCM_GETITEMCOUNT, 0, 0),
                     reinterpret_cast<LPARAM>(&tab));
    } else {
        const UINT message = widget_.kind() == WidgetKind::listBox ? LB_ADDSTRING : CB_ADDSTRING;
        SendMessageW(widget_.window, message, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void WidgetList::showChoice() const
{
    if (!widget_.window)
        return;
    const auto index = static_cast<WPARAM>(chosen_);
    switch (widget_.kind()) {
    case WidgetKind::tabStrip: SendMessageW(widget_.window, TCM_SETCURSEL, index, 0); break;
    case WidgetKind::listBox:
        for (int i = 0; i < count(); ++i)
            showSelected(i, items_[static_cast<std::size_t>(i)].selected);
        break;
    default: SendMessageW(widget_.window, CB_SETCURSEL, index, 0); break;
    }
}

void WidgetList::showSelected(int index, bool on) const
{
    if (widget_.window && widget_.kind() == WidgetKind::listBox)
        SendMessageW(widget_.window, LB_SETSEL, on, index);
}

void WidgetList::fill() const
{
    for (const Item& item : items_)
        showItem(item);
    showChoice();
}

void WidgetList::readFromWindow()
{
    if (widget_.kind() == WidgetKind::listBox) {
        for (int i = 0; i < count(); ++i)
            items_[static_cast<std::size_t>(i)].selected =
                SendMessageW(widget_.window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0;
        chosen_ = static_cast<int>(SendMessageW(widget_.window, LB_GETCARETINDEX, 0, 0));
        return;
    }
    const UINT message = widget_.kind() == WidgetKind::tabStrip ? TCM_GETCURSEL : CB_GETCURSEL;
    chosen_ = static_cast<int>(SendMessageW(widget_.window, message, 0, 0));
}

void WidgetList::add(std::u16string_view item)
{
    items_.push_back({std::u16string(item), false});
    showItem(items_.back());
}

void WidgetList::remove(int index)
{
    check(index);
    items_.erase(items_.begin() + index);
    if (chosen_ == index)
        chosen_ = -1;
    else if (chosen_ > index)
        --chosen_;
    if (!widget_.window)
        return;
    const UINT message = widget_.kind() == WidgetKind::tabStrip  ? TCM_DELETEITEM
                         : widget_.kind() == WidgetKind::listBox ? LB_DELETESTRING
                                                                 : CB_DELETESTRING;
    SendMessageW(widget_.window, message, static_cast<WPARAM>(index), 0);
}

void WidgetList::clear()
{
    items_.clear();
    chosen_ = -1;
    if (widget_.window) {
        const UINT message = widget_.kind() == WidgetKind::tabStrip  ? TCM_DELETEALLITEMS
                             : widget_.kind() == WidgetKind::listBox ? LB_RESETCONTENT
                                                                     : CB_RESETCONTENT;
        SendMessageW(widget_.window, message, 0, 0);
    }
    form_.listCleared(widget_);
}

std::u16string WidgetList::at(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].text;
}

void WidgetList::choose(int index)
{
    if (index != -1)
        check(index);
    chosen_ = index;
    for (int i = 0; i < count(); ++i)
        items_[static_cast<std::size_t>(i)].selected = i == index;
    showChoice();
    form_.itemChosen(widget_);
}

bool WidgetList::selected(int index) const
{
    check(index);
    return items_[static_cast<std::size_t>(index)].selected;
}

void WidgetList::select(int index, bool on)
{
    check(index);
    items_[static_cast<std::size_t>(index)].selected = on;
    showSelected(index, on);
}

int WidgetList::indexOf(std::u16string_view item) const
{
    const auto found = std::ranges::find(items_, item, &Item::text);
    if (found == items_.end())
        engine::raise(engine::error_number::invalidPropertyValue);
    return static_cast<int>(found - items_.begin());
}

void WidgetList::forgetChoice()
{
    if (std::exchange(chosen_, -1) >= 0)
        showChoice();
}

} // namespace vela::win32
