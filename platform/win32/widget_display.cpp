// Shows a form's widgets as they are: what its logic has put, in the windows that stand for them.
#include "engine/scoped_value.h"
#include "platform/win32/access_key.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/text.h"
#include "platform/win32/widget_windows.h"

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

void WidgetWindows::showText(const Widget& widget)
{
    const HWND window = of(widget).window;
    if (!window)
        return repaint(widget);
    const engine::ScopedFlag quiet(quiet_, true);
    SetWindowTextW(window, wide(markedCaption(widget).c_str()));
}

void WidgetWindows::showCheck(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, BM_SETCHECK, widget.checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void WidgetWindows::showEnabled(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        EnableWindow(window, widget.enabled);
    else
        repaint(widget);
}

void WidgetWindows::showVisibility()
{
    if (!form_)
        return;
    for (const WidgetWindow& widget : windows_)
        if (widget.window)
            ShowWindow(widget.window, widgets_.showing(widget.values) ? SW_SHOWNA : SW_HIDE);
    InvalidateRect(form_, nullptr, FALSE);
}

void WidgetWindows::showLook(const Widget& widget, const platform::WidgetLook& before)
{
    if (widget.look.left != before.left || widget.look.top != before.top) {
        placeWidget(of(widget));
        if (form_)
            InvalidateRect(form_, nullptr, FALSE);
    }
    if (widget.look.spokenName != before.spokenName)
        rememberSpokenName(of(widget));
    repaint(widget);
}

void WidgetWindows::rememberSpokenName(WidgetWindow& widget)
{
    const std::u16string& name = widget.values.look.spokenName;
    if (!widget.window || name.empty())
        return;
    widget.saysItsName = !setAccessibleName(widget.window, name);
    if (widget.inner && !widget.saysItsName)
        setAccessibleName(widget.inner, name); // where the focus is
}

void WidgetWindows::showFont(const Widget& widget)
{
    of(widget).font.reset();
    if (of(widget).window)
        applyFont(of(widget));
    repaint(widget);
}

void WidgetWindows::showBackColour()
{
    if (form_)
        InvalidateRect(form_, nullptr, FALSE);
}

void WidgetWindows::repaint(const Widget& widget)
{
    if (!form_)
        return;
    if (const HWND window = of(widget).window)
        InvalidateRect(window, nullptr, TRUE);
    const RECT place = rectOf(widget);
    InvalidateRect(form_, &place, FALSE);
}

void WidgetWindows::showItem(const WidgetWindow& widget, int index)
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

void WidgetWindows::itemAdded(const Widget& widget)
{
    if (of(widget).window)
        showItem(of(widget), widget.list->count() - 1);
}

void WidgetWindows::itemRemoved(const Widget& widget, int index)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, messagesOf(widget.kind()).remove, static_cast<WPARAM>(index), 0);
}

void WidgetWindows::itemsCleared(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, messagesOf(widget.kind()).clear, 0, 0);
}

void WidgetWindows::showChoice(const Widget& widget)
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

void WidgetWindows::showSelected(const Widget& widget, int index)
{
    const HWND window = of(widget).window;
    if (window && widget.kind() == WidgetKind::listBox)
        SendMessageW(window, LB_SETSEL, widget.list->selected(index), index);
}

// The combo puts the chosen text into its box only after it has notified of the choice.
void WidgetWindows::adoptList(const WidgetWindow& widget)
{
    platform::ItemList& list = *widget.values.list;
    if (widget.kind() == WidgetKind::listBox)
        for (int i = 0; i < list.count(); ++i)
            list.adoptSelected(i, SendMessageW(widget.window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0);
    list.adoptChoice(static_cast<int>(SendMessageW(widget.window, messagesOf(widget.kind()).chosen, 0, 0)));
    if (widget.kind() == WidgetKind::comboBox && list.chosen() >= 0) {
        const engine::ScopedFlag quiet(quiet_, true);
        SetWindowTextW(widget.window, wide(list.chosenText().c_str()));
    }
}

} // namespace vela::win32
