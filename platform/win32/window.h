// Windows as numbers and texts, and window classes whose procedure hands each message to the object bound to the
// window.
#pragma once

#include "platform/window_id.h"

#include <windows.h>

#include <string>

namespace vela::win32 {

[[nodiscard]] inline HWND windowOf(platform::WindowId id) noexcept
{
    return reinterpret_cast<HWND>(id.value);
}
[[nodiscard]] inline platform::WindowId idOf(HWND window) noexcept
{
    return {reinterpret_cast<std::uintptr_t>(window)};
}
[[nodiscard]] std::u16string textOf(HWND window); // its caption or what is typed; empty for a null one

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
// Called by the entry point before the module is unloaded.
void unregisterClasses() noexcept;

// Bound in WM_NCCREATE, unbound in WM_NCDESTROY. Null when the system refuses.
[[nodiscard]] HWND createBound(const wchar_t* windowClass, WindowHandler& handler, DWORD extendedStyle, DWORD style,
                               const RECT& place, HWND parent) noexcept;
// Destroys an unbound window when the calls under way have ended: one of them may run in its procedure.
void destroyLater(HWND window) noexcept;
// No message reaches the handler from now on.
void unbind(HWND window) noexcept;

} // namespace vela::win32
