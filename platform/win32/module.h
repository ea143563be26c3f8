// The module this code is linked into: the library itself, or the program that holds it.
#pragma once

#include <windows.h>

#include <string>

namespace vela::win32 {

[[nodiscard]] HINSTANCE thisModule() noexcept;
[[nodiscard]] std::wstring modulePath();

} // namespace vela::win32
