// A form made, and shown: as a pop-up, as a modal dialog, as a child of a frame.
#include "engine/error.h"
#include "platform/win32/dpi.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/form_window.h"
#include "platform/win32/modal.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <utility>

namespace vela::win32 {
namespace {

constexpr UINT_PTR formTimer = 1;
constexpr DWORD modalStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD modalExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

// The middle of the owner, or of the screen's work area, kept on the screen.
POINT centred(SIZE size, HWND owner)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &monitor);
    RECT around = monitor.rcWork;
    if (owner)
        GetWindowRect(owner, &around);
    const LONG x = (around.left + around.right - size.cx) / 2;
    const LONG y = (around.top + around.bottom - size.cy) / 2;
    return {std::clamp(x, monitor.rcWork.left, std::max(monitor.rcWork.left, monitor.rcWork.right - size.cx)),
            std::clamp(y, monitor.rcWork.top, std::max(monitor.rcWork.top, monitor.rcWork.bottom - size.cy))};
}

} // namespace

FormWindow::FormWindow(const platform::FormLayout& layout, const platform::FormEvents& events)
    : windows_(layout, events, *this), arbiter_(FocusArbiter::retain())
{
}

FormWindow::~FormWindow()
{
    closed_ = true;
    endShowing();
    dropWindows();
    FocusArbiter::release();
}

SIZE FormWindow::naturalSize(int dpi) const
{
    return {engine::twipsToPixels(widgets_.layout().width, dpi), engine::twipsToPixels(widgets_.layout().height, dpi)};
}

void FormWindow::makeTopLevel(Role role, HWND owner, RECT place, DWORD style, DWORD extendedStyle)
{
    dropWindows();
    role_ = role;
    owner_ = owner;
    const HWND made = createBound(formClass(), *this, extendedStyle, style, place, owner);
    if (!made)
        engine::raise(engine::error_number::outOfMemory);
    window_ = made;
    SetWindowTextW(window_, std::wstring(wide(widgets_.layout().caption)).c_str());
    windows_.make(window_);
    if (timer_ > 0)
        SetTimer(window_, formTimer, static_cast<UINT>(timer_), nullptr);
}

// The place's size is that at 96 dpi; the window takes the owner's dpi and the table fills it.
void FormWindow::showPopup(engine::RectPixels place, platform::WindowId owner)
{
    const HWND top = GetAncestor(windowOf(owner), GA_ROOT);
    const int dpi = dpiOf(top);
    const int width = scaled(place.width, dpi);
    const int height = scaled(place.height, dpi);
    windows_.putScale(std::min(static_cast<double>(width) / widgets_.layout().width,
                               static_cast<double>(height) / widgets_.layout().height));
    if (role_ == Role::popup && window_ && owner_ == top) {
        RECT before{};
        GetWindowRect(window_, &before);
        SetWindowPos(window_, HWND_TOP, place.left, place.top, width, height, SWP_NOACTIVATE);
        if (before.right - before.left != width || before.bottom - before.top != height)
            windows_.layOut();
    } else {
        makeTopLevel(Role::popup, top, {place.left, place.top, place.left + width, place.top + height},
                     WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT);
        returnTo_ = GetFocus();
    }
    arbiter_.addBorrower(window_);
    const engine::Alive alive(life_);
    const bool again = std::exchange(shown_, true);
    appear();
    if (alive && window_ && GetActiveWindow() != window_)
        SetForegroundWindow(window_);
    else if (alive && window_ && again)
        activation(true); // it was active already, so no WM_ACTIVATE comes
}

// Paints the form with all its widgets before it is activated: activation lets other code run, and the form would be
// seen half drawn.
void FormWindow::appear()
{
    const engine::Alive alive(life_);
    const HWND window = window_;
    ShowWindow(window, SW_SHOWNA);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    if (alive && window_ == window)
        SetActiveWindow(window);
}

void FormWindow::showModal()
{
    const Modal dialog;
    const HWND active = GetActiveWindow();
    const HWND owner = active ? GetAncestor(active, GA_ROOT) : nullptr;
    const int dpi = dpiOf(owner);
    windows_.putScale(static_cast<double>(dpi) / engine::twipsPerInch);
    const SIZE client = naturalSize(dpi);
    RECT frame{0, 0, client.cx, client.cy};
    AdjustWindowRectEx(&frame, modalStyle, FALSE, modalExtendedStyle);
    const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
    const POINT corner = centred(size, owner);
    returnTo_ = GetFocus();
    makeTopLevel(Role::modal, owner, {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy}, modalStyle,
                 modalExtendedStyle);
    arbiter_.addBorrower(window_);
    if (owner)
        EnableWindow(owner, FALSE);
    shown_ = true;
    const engine::Alive alive(life_);
    ShowWindow(window_, SW_SHOW);
    if (alive && shown_)
        SetForegroundWindow(window_);
    if (alive)
        runModalLoop();
}

void FormWindow::runModalLoop()
{
    const engine::Alive alive(life_);
    MSG message{};
    while (alive && shown_) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam)); // the host's loop is to see it
            close();
            return;
        }
        if (!translate(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void FormWindow::showChild(HWND parent, const RECT& place)
{
    windows_.putScale(static_cast<double>(dpiOf(parent)) / engine::twipsPerInch);
    makeTopLevel(Role::child, parent, place, WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_VISIBLE,
                 WS_EX_CONTROLPARENT);
    shown_ = true;
}

void FormWindow::showChildWindow(bool visible)
{
    if (visible)
        learnGround();
    if (window_)
        ShowWindow(window_, visible ? SW_SHOWNA : SW_HIDE);
}

void FormWindow::moveChild(const RECT& place)
{
    if (window_)
        SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::leaveParent()
{
    shown_ = false;
    role_ = Role::none;
    dropWindows();
}

void FormWindow::focus(platform::WidgetId widget)
{
    if (!widgets_.mayTakeFocus(widget))
        return;
    const HWND window = windows_.of(widgets_.at(widget)).window;
    if (window && shown_)
        SetFocus(window);
    else
        widgets_.focusArrived(widget);
}

platform::WindowId FormWindow::window() const
{
    return idOf(window_);
}

void FormWindow::focusFirst()
{
    const platform::WidgetId focused = widgets_.focused();
    if (const HWND window = focused ? windows_.of(widgets_.at(focused)).window : nullptr)
        SetFocus(window);
    else if (role_ != Role::popup)
        nextWidget(false);
}

void FormWindow::startTimer(int milliseconds)
{
    timer_ = std::max(milliseconds, 0);
    if (!window_)
        return;
    if (timer_ > 0)
        SetTimer(window_, formTimer, static_cast<UINT>(timer_), nullptr);
    else
        KillTimer(window_, formTimer);
}

void FormWindow::close()
{
    if (std::exchange(closed_, true))
        return;
    const engine::Alive alive(life_);
    timer_ = 0;
    endShowing();
    if (alive && events_.popup)
        events_.popup->closed();
}

// Gives the focus back to the window that had it, unless it went elsewhere meanwhile.
void FormWindow::endShowing()
{
    if (!std::exchange(shown_, false))
        return;
    const engine::Alive alive(life_);
    const HWND window = window_;
    if (role_ == Role::modal && owner_)
        EnableWindow(owner_, TRUE);
    if (window && role_ != Role::child && GetActiveWindow() == window) {
        if (returnTo_ && IsWindow(returnTo_))
            SetFocus(returnTo_);
        else if (owner_)
            SetActiveWindow(owner_);
    }
    if (!alive)
        return;
    if (window)
        ShowWindow(window, SW_HIDE);
    arbiter_.removeBorrower(window);
    if (alive)
        dropWindows();
}

// A window may be dropped by what its own procedure called: then it is destroyed when that has returned.
void FormWindow::dropWindows()
{
    windows_.letGo();
    pressed_ = nullptr;
    speech_.forget();
    const HWND window = std::exchange(window_, nullptr);
    if (!window)
        return;
    unbind(window);
    if (running_ > 0)
        destroyLater(window);
    else
        DestroyWindow(window);
}

std::unique_ptr<platform::Form> FormFactory::make(const platform::FormLayout& layout,
                                                  const platform::FormEvents& events)
{
    return std::make_unique<FormWindow>(layout, events);
}

} // namespace vela::win32
