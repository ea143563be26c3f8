// A window class whose procedure hands each message to the object bound to the window.
#pragma once

#include <windows.h>

namespace vela::win32 {

class WindowHandler {
public:
    // May destroy the handler; nothing of it is touched after the call.
    virtual LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) = 0;
    virtual void unbound() = 0; // the window is gone; last call

protected:
    ~WindowHandler() = default;
};

// Registered at first use, once a module.
[[nodiscard]] const wchar_t* surfaceClass() noexcept;
[[nodiscard]] const wchar_t* formClass() noexcept;
[[nodiscard]] const wchar_t* messageClass() noexcept;
// The entry point calls it before the module goes.
void unregisterClasses() noexcept;

// Bound in WM_NCCREATE, unbound in WM_NCDESTROY. Null when the system refuses.
[[nodiscard]] HWND createBound(const wchar_t* windowClass, WindowHandler& handler, DWORD extendedStyle, DWORD style,
                               const RECT& place, HWND parent) noexcept;
// An unbound window that goes when the calls under way have ended: one may be of its own procedure.
void destroyLater(HWND window) noexcept;
// No message reaches the handler from now on.
void unbind(HWND window) noexcept;

} // namespace vela::win32
