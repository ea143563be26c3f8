// The tooltip control's narrow messages, one function each.
#include "platform/win32/tooltip_window.h"

#include "platform/win32/activation_context.h"
#include "platform/win32/colours.h"
#include "platform/win32/guard.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/window.h"
#include "platform/win32/window_map.h"

#include <cstddef>
#include <utility>

namespace vela::win32 {

TooltipWindow::TooltipWindow()
{
    InitCommonControls();
}

TooltipWindow::~TooltipWindow()
{
    destroy();
}

bool TooltipWindow::create(platform::WindowId parent)
{
    destroy();
    const HWND owner = windowOf(parent);
    const ActivationContext controls;
    // No style of the tooltip's own: the default look. A pop-up is what the class makes of itself; asked for as one, it
    // is never framed nor given the focus by a window manager.
    window_ = CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP, 0, 0, 0, 0, owner, nullptr, nullptr, nullptr);
    if (window_)
        subclass(window_, this, &TooltipWindow::procedure);
    // The record without its reserved field: 44 bytes in 32 bit, 64 in 64 bit. Version 5 refuses the longer one.
    tool_ = {};
    tool_.cbSize = offsetof(TTTOOLINFOA, lpReserved);
    static_assert(offsetof(TTTOOLINFOA, lpReserved) == (sizeof(void*) == 4 ? 44 : 64));
    tool_.uFlags = TTF_IDISHWND | TTF_SUBCLASS | TTF_TRACK;
    tool_.hwnd = owner;
    tool_.uId = reinterpret_cast<UINT_PTR>(owner);
    tool_.hinst = thisModule();
    return window_ != nullptr;
}

void TooltipWindow::destroy()
{
    if (const HWND window = std::exchange(window_, nullptr)) {
        unbindObject(window);
        DestroyWindow(window);
    }
}

LRESULT CALLBACK TooltipWindow::procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    if (message == WM_MOUSEACTIVATE)
        return MA_NOACTIVATE; // a click on it is no leaving of the field; Wine's class would take the focus
    if (auto* const tooltip = static_cast<TooltipWindow*>(boundObject(window)); tooltip && message == WM_NCDESTROY)
        tooltip->window_ = nullptr;
    return behindProcedure(window, message, first, second);
}

bool TooltipWindow::exists() const
{
    return window_ != nullptr;
}

void TooltipWindow::addTool(std::u16string_view text)
{
    keepText(text);
    send(TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool_));
}

void TooltipWindow::setTitle(int icon, std::u16string_view title)
{
    constexpr std::size_t longestTitle = 99; // the control refuses a longer one
    const std::string bytes = narrow(title).substr(0, longestTitle);
    send(TTM_SETTITLEA, static_cast<WPARAM>(icon), reinterpret_cast<LPARAM>(bytes.c_str()));
}

void TooltipWindow::setTextColour(engine::Colour colour)
{
    send(TTM_SETTIPTEXTCOLOR, resolve(colour), 0);
}

void TooltipWindow::setBackColour(engine::Colour colour)
{
    send(TTM_SETTIPBKCOLOR, resolve(colour), 0);
}

void TooltipWindow::setDelay(int kind, int milliseconds)
{
    if (kind == TTDT_AUTOPOP)
        visibleFor_ = milliseconds;
    send(TTM_SETDELAYTIME, static_cast<WPARAM>(kind), milliseconds);
}

void TooltipWindow::updateText(std::u16string_view text)
{
    keepText(text);
    send(TTM_UPDATETIPTEXTA, 0, reinterpret_cast<LPARAM>(&tool_));
}

void TooltipWindow::trackPosition(std::int32_t packed)
{
    send(TTM_TRACKPOSITION, 0, packed);
}

void TooltipWindow::trackActivate(bool active)
{
    send(TTM_TRACKACTIVATE, active, reinterpret_cast<LPARAM>(&tool_));
    if (!exists())
        return;
    const auto timer = reinterpret_cast<UINT_PTR>(this); // goes with the window; an address is none of its own timers
    if (active && visibleFor_ > 0)
        SetTimer(window_, timer, static_cast<UINT>(visibleFor_), timeIsUp);
    else
        KillTimer(window_, timer);
}

void TooltipWindow::timeIsUp(HWND, UINT, UINT_PTR timer, DWORD) noexcept
{
    contained([timer] { reinterpret_cast<TooltipWindow*>(timer)->trackActivate(false); });
}

std::pair<int, int> TooltipWindow::clientToScreen(platform::WindowId window, int x, int y) const
{
    POINT point{x, y};
    ClientToScreen(windowOf(window), &point);
    return {point.x, point.y};
}

LRESULT TooltipWindow::send(UINT message, WPARAM first, LPARAM second) const noexcept
{
    return exists() ? SendMessageA(window_, message, first, second) : 0;
}

void TooltipWindow::keepText(std::u16string_view text)
{
    text_ = narrow(text);
    tool_.lpszText = text_.data();
}

} // namespace vela::win32
