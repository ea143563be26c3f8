// Loading of the type library from the module's resources, registered or not.
#include "activex/com/type_library.h"

#include "activex/com/guard.h"
#include "platform/win32/module.h"

namespace vela::activex {

HRESULT loadTypeLibrary(ComPtr<ITypeLib>& library) noexcept
{
    return guarded([&] { return LoadTypeLibEx(win32::modulePath().c_str(), REGKIND_NONE, &library); });
}

HRESULT loadTypeInfo(REFGUID id, ITypeInfo** info) noexcept
{
    *info = nullptr;
    ComPtr<ITypeLib> library;
    const HRESULT loaded = loadTypeLibrary(library);
    return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(id, info);
}

} // namespace vela::activex
