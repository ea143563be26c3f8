// Which object a window of this thread belongs to. A window's own user data would cost a call to the system to set.
#pragma once

#include <windows.h>

namespace vela::win32 {

// A window of this module's own classes, from WM_NCCREATE on.
void bindObject(HWND window, void* object);
// A window just made of another's class: `procedure` gets its messages first, until it is gone. It is never taken out:
// others may have put theirs in front meanwhile, and would call it still.
// Answers the procedure behind it, the class's own.
WNDPROC subclass(HWND window, void* object, WNDPROC procedure);
void unbindObject(HWND window) noexcept; // its object goes; the window may live on
void forgetWindow(HWND window) noexcept; // at WM_NCDESTROY, or when it has been destroyed

[[nodiscard]] void* boundObject(HWND window) noexcept; // null when there is none
// What the message is to the window's class. To be given on also where the window is bound no longer.
LRESULT behindProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;

} // namespace vela::win32
