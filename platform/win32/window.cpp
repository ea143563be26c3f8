// Registers the window classes and passes each message to the bound handler, behind the guard.
#include "platform/win32/window.h"

#include "platform/win32/guard.h"
#include "platform/win32/locked.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/thread.h"
#include "platform/win32/window_map.h"

namespace vela::win32 {
namespace {

LRESULT dispatch(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
        bindObject(window, creation->lpCreateParams);
        return DefWindowProcW(window, message, first, second);
    }
    auto* handler = static_cast<WindowHandler*>(boundObject(window));
    if (message == WM_NCDESTROY) {
        forgetWindow(window);
        if (handler)
            handler->unbound();
        handler = nullptr;
    }
    return handler ? handler->handle(window, message, first, second) : DefWindowProcW(window, message, first, second);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    return contained([&] { return dispatch(window, message, first, second); }, LRESULT{0});
}

struct WindowClass {
    const wchar_t* name;
    UINT style;
    bool registered = false;
};

// A class name is per module, so that two copies of this library in one process do not meet.
WindowClass classes[] = {{L"VelaControl", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW},
                         {L"VelaForm", CS_DBLCLKS | CS_DROPSHADOW},
                         {L"VelaMessages", 0}};

// One thread at a time: a class that another is just registering cannot be found yet.
const wchar_t* registered(WindowClass& wanted) noexcept
{
    static SRWLOCK lock = SRWLOCK_INIT;
    const Locked locked(lock);
    if (!wanted.registered) {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.style = wanted.style;
        description.lpfnWndProc = procedure;
        description.hInstance = thisModule();
        description.hCursor = LoadCursorW(nullptr, reinterpret_cast<const wchar_t*>(IDC_ARROW));
        description.lpszClassName = wanted.name;
        wanted.registered = RegisterClassExW(&description) != 0;
        // A class left from an earlier loading of the module: its window procedure is gone.
        if (!wanted.registered && UnregisterClassW(wanted.name, thisModule()))
            wanted.registered = RegisterClassExW(&description) != 0;
    }
    return wanted.name;
}

} // namespace

std::u16string textOf(HWND window)
{
    std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    const int read = GetWindowTextW(window, wide(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(read));
    return text;
}

const wchar_t* surfaceClass() noexcept
{
    return registered(classes[0]);
}
const wchar_t* formClass() noexcept
{
    return registered(classes[1]);
}
const wchar_t* messageClass() noexcept
{
    return registered(classes[2]);
}

void unregisterClasses() noexcept
{
    for (WindowClass& each : classes)
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
    ShowWindow(window, SW_HIDE);
    const auto destroy = [](void* waiting) noexcept { DestroyWindow(static_cast<HWND>(waiting)); };
    if (!afterCall(destroy, window))
        DestroyWindow(window);
}

void unbind(HWND window) noexcept
{
    unbindObject(window);
}

} // namespace vela::win32
