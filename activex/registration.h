// Entering the library into the registry, for the machine or for one user, and taking it out again.
#pragma once

#include <windows.h>

namespace vela::activex {

enum class Scope {
    machineOrUser, // the machine; the user where the machine may not be written. Unregistered: both
    user,
};

// When it fails, everything is as it was before. The failure names the key and the cure, as error information and in a
// box unless the caller wants silence (regsvr32 /s) or has no desktop that anybody sees.
[[nodiscard]] HRESULT registerServer(Scope scope) noexcept;
// From the user's registration, or from both. What the other bitness shares stays as long as that one is registered.
[[nodiscard]] HRESULT unregisterServer(Scope scope) noexcept;
// regsvr32 /i:WORD, with /u when it is not wanted. "user", or nothing; E_INVALIDARG and a message for another word.
[[nodiscard]] HRESULT install(bool wanted, const wchar_t* word) noexcept;

} // namespace vela::activex
