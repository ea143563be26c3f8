// Entering the library into the registry, for the machine or for one user, and taking it out again.
#pragma once

#include <windows.h>

namespace vela::activex {

enum class Scope {
    machineOrUser, // the machine; the user where the machine may not be written
    user,
};

// Nothing stays behind when it fails. The failure names the key and the cure, in a box unless the caller wants silence
// (regsvr32 /s) and as error information.
[[nodiscard]] HRESULT registerServer(Scope scope) noexcept;
// From both places. What the other bitness shares stays as long as that one is registered.
[[nodiscard]] HRESULT unregisterServer() noexcept;

} // namespace vela::activex
