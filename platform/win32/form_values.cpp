// Shows a form's widgets as they are: what its logic has put, in the windows that stand for them.
#include "platform/win32/access_key.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace vela::win32 {

using platform::Widget;
using platform::WidgetId;

FormWindow::FormWindow(const platform::FormLayout& layout, const platform::FormEvents& events)
    : widgets_(layout, events, this), arbiter_(FocusArbiter::retain())
{
    windows_.reserve(widgets_.all().size());
    for (const Widget& widget : widgets_.all())
        windows_.emplace_back(*this, widget);
}

FormWindow::~FormWindow()
{
    closed_ = true;
    endShowing();
    dropWindows();
    FocusArbiter::release();
}

WidgetWindow& FormWindow::of(const Widget& widget)
{
    return windows_[static_cast<std::size_t>(widget.id.value)];
}

WidgetWindow* FormWindow::ofWindow(HWND window) noexcept
{
    for (WidgetWindow& widget : windows_)
        if (window && (widget.window == window || widget.inner == window))
            return &widget;
    return nullptr;
}

void FormWindow::showText(const Widget& widget)
{
    const HWND window = of(widget).window;
    if (!window)
        return repaint(widget);
    const engine::ScopedFlag quiet(quiet_, true);
    SetWindowTextW(window, wide(markedCaption(widget).c_str()));
}

void FormWindow::showCheck(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        SendMessageW(window, BM_SETCHECK, widget.checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void FormWindow::showEnabled(const Widget& widget)
{
    if (const HWND window = of(widget).window)
        EnableWindow(window, widget.enabled);
    else
        repaint(widget);
}

void FormWindow::showVisibility()
{
    if (!window_)
        return;
    for (const WidgetWindow& widget : windows_)
        if (widget.window)
            ShowWindow(widget.window, widgets_.showing(widget.values) ? SW_SHOWNA : SW_HIDE);
    InvalidateRect(window_, nullptr, FALSE);
}

void FormWindow::showLook(const Widget& widget, const platform::WidgetLook& before)
{
    if (widget.look.left != before.left || widget.look.top != before.top) {
        placeWidget(of(widget));
        if (window_)
            InvalidateRect(window_, nullptr, FALSE);
    }
    if (widget.look.spokenName != before.spokenName)
        rememberSpokenName(of(widget));
    repaint(widget);
}

void FormWindow::rememberSpokenName(WidgetWindow& widget)
{
    const std::u16string& name = widget.values.look.spokenName;
    if (!widget.window || name.empty())
        return;
    widget.saysItsName = !setAccessibleName(widget.window, name);
    if (widget.inner && !widget.saysItsName)
        setAccessibleName(widget.inner, name); // where the focus is
}

void FormWindow::showFont(const Widget& widget)
{
    of(widget).font.reset();
    if (of(widget).window)
        applyFont(of(widget));
    repaint(widget);
}

void FormWindow::showBackColour()
{
    if (window_)
        InvalidateRect(window_, nullptr, FALSE);
}

void FormWindow::repaint(const Widget& widget)
{
    if (!window_)
        return;
    if (const HWND window = of(widget).window)
        InvalidateRect(window, nullptr, TRUE);
    const RECT place = rectOf(widget);
    InvalidateRect(window_, &place, FALSE);
}

void FormWindow::focus(WidgetId widget)
{
    if (!widgets_.mayTakeFocus(widget))
        return;
    const HWND window = of(widgets_.at(widget)).window;
    if (window && shown_)
        SetFocus(window);
    else
        widgets_.focusArrived(widget);
}

platform::WindowId FormWindow::window() const
{
    return idOf(window_);
}

std::unique_ptr<platform::Form> FormFactory::make(const platform::FormLayout& layout,
                                                  const platform::FormEvents& events)
{
    return std::make_unique<FormWindow>(layout, events);
}

} // namespace vela::win32
