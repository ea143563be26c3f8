// Items and choices in the windows of lists, combos and tab strips.
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

#include <commctrl.h>

namespace vela::win32 {
namespace {

using platform::Widget;
using platform::WidgetKind;

struct ListMessages {
    UINT remove, clear, choose, chosen;
};

// A list box marks its chosen items one by one.
ListMessages messagesOf(WidgetKind kind) noexcept
{
    if (kind == WidgetKind::tabStrip)
        return {TCM_DELETEITEM, TCM_DELETEALLITEMS, TCM_SETCURSEL, TCM_GETCURSEL};
    if (kind == WidgetKind::listBox)
        return {LB_DELETESTRING, LB_RESETCONTENT, WM_NULL, LB_GETCARETINDEX};
    return {CB_DELETESTRING, CB_RESETCONTENT, CB_SETCURSEL, CB_GETCURSEL};
}

} // namespace

void FormWindow::showItem(const WidgetWindow& widget, int index)
{
    std::u16string text = widget.values.list->at(index);
    if (widget.kind() == WidgetKind::tabStrip) {
        TCITEMW tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = wide(text.data());
        SendMessageW(widget.window, TCM_INSERTITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
    } else {
        const UINT message = widget.kind() == WidgetKind::listBox ? LB_ADDSTRING : CB_ADDSTRING;
        SendMessageW(widget.window, message, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void FormWindow::itemAdded(const Widget& widget)
{
    if (of(widget).window)
        showItem(of(widget), widget.list->count() - 1);
}

void FormWindow::itemRemoved(const Widget& widget, int index)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, messagesOf(widget.kind()).remove, static_cast<WPARAM>(index), 0);
}

void FormWindow::itemsCleared(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, messagesOf(widget.kind()).clear, 0, 0);
}

void FormWindow::showChoice(const Widget& widget)
{
    const HWND window = of(widget).window;
    if (!window)
        return;
    const engine::ScopedFlag quiet(quiet_, true);
    if (widget.kind() != WidgetKind::listBox)
        SendMessageW(window, messagesOf(widget.kind()).choose, static_cast<WPARAM>(widget.list->chosen()), 0);
    else
        for (int i = 0; i < widget.list->count(); ++i)
            showSelected(widget, i);
}

void FormWindow::showSelected(const Widget& widget, int index)
{
    const HWND window = of(widget).window;
    if (window && widget.kind() == WidgetKind::listBox)
        SendMessageW(window, LB_SETSEL, widget.list->selected(index), index);
}

void FormWindow::adoptList(const WidgetWindow& widget)
{
    platform::ItemList& list = *widget.values.list;
    if (widget.kind() == WidgetKind::listBox)
        for (int i = 0; i < list.count(); ++i)
            list.adoptSelected(i, SendMessageW(widget.window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0);
    list.adoptChoice(static_cast<int>(SendMessageW(widget.window, messagesOf(widget.kind()).chosen, 0, 0)));
}

} // namespace vela::win32
