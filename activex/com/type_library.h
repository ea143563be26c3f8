// The type library that the module itself carries.
#pragma once

#include "activex/com/owners.h"

namespace vela::activex {

// The system's answer when it cannot be read.
[[nodiscard]] HRESULT loadTypeLibrary(ComPtr<ITypeLib>& library) noexcept;
[[nodiscard]] HRESULT loadTypeInfo(REFGUID id, ITypeInfo** info) noexcept;

} // namespace vela::activex
