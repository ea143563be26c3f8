// The keys that are held, as the field's shift state.
#pragma once

#include <windows.h>

namespace vela::win32 {

// Shift 1, Control 2, Alt 4.
[[nodiscard]] inline int shiftState() noexcept
{
    const auto held = [](int key) { return GetKeyState(key) < 0; };
    return (held(VK_SHIFT) ? 1 : 0) + (held(VK_CONTROL) ? 2 : 0) + (held(VK_MENU) ? 4 : 0);
}

} // namespace vela::win32
