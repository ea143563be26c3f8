// Which object a window of this thread belongs to. A window's own user data would cost a call to the system to set.
#pragma once

#include <windows.h>

namespace vela::win32 {

void bindObject(HWND window, void* object);
void unbindObject(HWND window) noexcept;
[[nodiscard]] void* boundObject(HWND window) noexcept; // null when there is none

} // namespace vela::win32
