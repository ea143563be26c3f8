// Registers the window classes and passes each message to the bound handler, behind the guard.
#include "platform/win32/window.h"

#include "platform/win32/guard.h"
#include "platform/win32/module.h"
#include "platform/win32/window_map.h"

#include <array>
#include <atomic>

namespace vela::win32 {
namespace {

constexpr UINT destroyMessage = WM_APP + 0x56;
constexpr const wchar_t* waitingMark = L"VelaWaiting"; // property of a window that waits to be destroyed
std::atomic<long> waiting{0};

LRESULT dispatch(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
        bindObject(window, creation->lpCreateParams);
        return DefWindowProcW(window, message, first, second);
    }
    auto* handler = static_cast<WindowHandler*>(boundObject(window));
    if (!handler && message == destroyMessage) {
        DestroyWindow(window);
        return 0;
    }
    if (!handler && message == WM_NCDESTROY && RemovePropW(window, waitingMark))
        --waiting; // also when its parent went first and took it along
    if (!handler)
        return DefWindowProcW(window, message, first, second);
    if (message == WM_NCDESTROY) {
        unbind(window);
        handler->unbound();
        return DefWindowProcW(window, message, first, second);
    }
    return handler->handle(window, message, first, second);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    return guarded([&] { return dispatch(window, message, first, second); }, LRESULT{0});
}

struct WindowClass {
    const wchar_t* name;
    UINT style;
    bool registered = false;
};

// A class name is per module, so that two copies of this library in one process do not meet.
std::array<WindowClass, 3>& classes() noexcept
{
    static std::array<WindowClass, 3> all{{{L"VelaControl", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW},
                                           {L"VelaForm", CS_DBLCLKS | CS_DROPSHADOW},
                                           {L"VelaMessages", 0}}};
    return all;
}

const wchar_t* registered(WindowClass& wanted) noexcept
{
    if (!wanted.registered) {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.style = wanted.style;
        description.lpfnWndProc = procedure;
        description.hInstance = thisModule();
        description.hCursor = LoadCursorW(nullptr, reinterpret_cast<const wchar_t*>(IDC_ARROW));
        description.lpszClassName = wanted.name;
        wanted.registered = RegisterClassExW(&description) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
    }
    return wanted.name;
}

} // namespace

const wchar_t* surfaceClass() noexcept
{
    return registered(classes()[0]);
}
const wchar_t* formClass() noexcept
{
    return registered(classes()[1]);
}
const wchar_t* messageClass() noexcept
{
    return registered(classes()[2]);
}

void unregisterClasses() noexcept
{
    for (WindowClass& each : classes())
        if (each.registered && UnregisterClassW(each.name, thisModule()))
            each.registered = false;
}

HWND createBound(const wchar_t* windowClass, WindowHandler& handler, DWORD extendedStyle, DWORD style,
                 const RECT& place, HWND parent) noexcept
{
    return CreateWindowExW(extendedStyle, windowClass, L"", style, place.left, place.top, place.right - place.left,
                           place.bottom - place.top, parent, nullptr, thisModule(), &handler);
}

void destroyLater(HWND window) noexcept
{
    if (SetPropW(window, waitingMark, window)) {
        ++waiting;
        if (PostMessageW(window, destroyMessage, 0, 0))
            return;
    }
    DestroyWindow(window);
}

long windowsToDestroy() noexcept
{
    return waiting;
}

void unbind(HWND window) noexcept
{
    unbindObject(window);
}

} // namespace vela::win32
