// Which object a window of this thread belongs to. A window's own user data would cost a call to the system to set.
#pragma once

#include <windows.h>

namespace vela::win32 {

// A window of this module's own classes, from WM_NCCREATE on.
void bindObject(HWND window, void* object);
// Subclasses a window that was just made of another class: `procedure` gets its messages first, until it is destroyed.
// The subclassing is never undone, because others may have subclassed the window since and would still call ours.
// Answers the window's former procedure.
WNDPROC subclass(HWND window, void* object, WNDPROC procedure);
void unbindObject(HWND window) noexcept; // its object is destroyed; the window may live on
void forgetWindow(HWND window) noexcept; // at WM_NCDESTROY, or when it has been destroyed

[[nodiscard]] void* boundObject(HWND window) noexcept; // null when there is none
// Passes a message on to the window's former procedure; to be called also when the window is no longer bound.
LRESULT behindProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;

} // namespace vela::win32
