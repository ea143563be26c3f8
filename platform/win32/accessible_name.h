// What a screen reader calls a window.
#pragma once

#include <windows.h>

#include <string_view>

namespace vela::win32 {

// Nothing happens where the system has no such service.
void setAccessibleName(HWND window, std::u16string_view name);

} // namespace vela::win32
