// Dots per inch of windows, where the system tells them one by one and where it does not.
#pragma once

#include <windows.h>

namespace vela::win32 {

inline constexpr int standardDpi = 96;

// The window's own; of no window: the system's.
[[nodiscard]] int dpiOf(HWND window) noexcept;
// 3 at 144 dpi is 5 (4.5 rounded).
[[nodiscard]] constexpr int scaled(int at96, int dpi) noexcept
{
    return (at96 * dpi + (at96 < 0 ? -standardDpi / 2 : standardDpi / 2)) / standardDpi;
}

} // namespace vela::win32
