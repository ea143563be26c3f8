// The keys that are held, as the field's shift state.
#pragma once

#include <windows.h>

namespace vela::win32 {

// Shift 1, Control 2, Alt 4.
[[nodiscard]] inline int shiftState() noexcept
{
    BYTE keys[256]; // one question for all three: each asks the system's server where there is one
    if (!GetKeyboardState(keys))
        return 0;
    const auto held = [&](int key) { return (keys[key] & 0x80) != 0; };
    return (held(VK_SHIFT) ? 1 : 0) + (held(VK_CONTROL) ? 2 : 0) + (held(VK_MENU) ? 4 : 0);
}

// Keys, characters and the pointer's buttons: what a window that shall not answer leaves alone.
[[nodiscard]] constexpr bool isInput(UINT message) noexcept
{
    const bool button = message > WM_MOUSEMOVE && message <= WM_MOUSELAST;
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || button || message == WM_CONTEXTMENU ||
           message == WM_IME_COMPOSITION;
}

} // namespace vela::win32
