// The module this code is linked into: the library itself, or the program that holds it.
#pragma once

#include <windows.h>

#include <string>

namespace vela::win32 {

[[nodiscard]] HINSTANCE thisModule() noexcept;
[[nodiscard]] std::wstring modulePath();

// The module may be unloaded only when nobody may call it any more. Counted for the process: by any thread.
void useModule() noexcept;
void leaveModule() noexcept;
[[nodiscard]] bool moduleInUse() noexcept;

// Held by each object and window that must not outlive the module's code.
class ModuleUse {
public:
    ModuleUse() noexcept { useModule(); }
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;
    ~ModuleUse() { leaveModule(); }
};

} // namespace vela::win32
