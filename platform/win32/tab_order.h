// The form that a window stands on, and the way of the Tab key through it.
#pragma once

#include <windows.h>

namespace vela::win32 {

// The nearest MDI child above the window, else the window at the top; null for none.
[[nodiscard]] HWND formOf(HWND window) noexcept;
// The next tab stop of the form, or the one before; null when there is no other. Containers without
// WS_EX_CONTROLPARENT are gone round by themselves and left at their end.
[[nodiscard]] HWND nextTabStop(HWND from, bool back) noexcept;

} // namespace vela::win32
