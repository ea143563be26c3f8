// The factory of each class of the library.
#pragma once

#include <windows.h>

#include <objbase.h>

namespace vela::activex {

// CLASS_E_CLASSNOTAVAILABLE for a class that is not ours.
[[nodiscard]] HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** object) noexcept;

} // namespace vela::activex
