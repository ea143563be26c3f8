// What a screen reader calls a window.
#pragma once

#include <windows.h>

#include <string_view>

namespace vela::win32 {

// False where the system keeps no such names: the window then answers for itself, by namedAnswer().
bool setAccessibleName(HWND window, std::u16string_view name);
// To WM_GETOBJECT: the system's own object of the window under this name. 0: the window's procedure is to answer.
[[nodiscard]] LRESULT namedAnswer(HWND window, WPARAM first, LPARAM second, std::u16string_view name);

} // namespace vela::win32
