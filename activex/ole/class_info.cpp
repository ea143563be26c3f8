// IProvideClassInfo2 and ISpecifyPropertyPages of the shell.
#include "activex/ole/class_info.h"

#include "activex/com/guard.h"
#include "activex/com/type_library.h"
#include "activex/ole/shell.h"

#include <algorithm>

namespace vela::activex {

HRESULT ClassInfo::GetClassInfo(ITypeInfo** info) noexcept
{
    return info ? loadTypeInfo(shell_.facts().clsid, info) : E_POINTER;
}

HRESULT ClassInfo::GetGUID(DWORD kind, GUID* id) noexcept
{
    if (!id)
        return E_POINTER;
    *id = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    if (!shell_.facts().events)
        return E_FAIL;
    *id = *shell_.facts().events;
    return S_OK;
}

HRESULT PageList::GetPages(CAUUID* pages) noexcept
{
    if (!pages)
        return E_POINTER;
    *pages = {};
    return guarded([&] {
        const auto ids = shell_.facts().pages;
        if (ids.empty())
            return;
        TaskMemory<GUID> list(ids.size());
        std::copy(ids.begin(), ids.end(), list.get());
        pages->cElems = static_cast<ULONG>(ids.size());
        pages->pElems = list.release();
    });
}

} // namespace vela::activex
