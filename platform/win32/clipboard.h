// Text on the clipboard.
#pragma once

#include <windows.h>

#include <string>

namespace vela::win32 {

// Empty when there is no text, or when another program holds the clipboard.
[[nodiscard]] std::u16string clipboardText(HWND owner);

} // namespace vela::win32
