// The system's own accessible objects.
#include "platform/win32/accessible_over.h"

#include "platform/win32/text.h"

#include <oleauto.h>

namespace vela::win32 {
namespace {

constexpr IID accessibleInterface{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

template <class Function>
Function functionOf(HMODULE library, const char* name) noexcept
{
    return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name))) : nullptr;
}

} // namespace

AccessibleService::AccessibleService() noexcept
    : library_(LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32))
{
}

IAccessible* AccessibleService::standardOf(HWND window) const noexcept
{
    using Make = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
    const auto make = functionOf<Make>(library_.get(), "CreateStdAccessibleObject");
    void* standard = nullptr;
    if (!make || FAILED(make(window, OBJID_CLIENT, accessibleInterface, &standard)))
        return nullptr;
    return static_cast<IAccessible*>(standard);
}

LRESULT AccessibleService::answer(WPARAM first, IAccessible& object) const noexcept
{
    using ToResult = LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*);
    const auto toResult = functionOf<ToResult>(library_.get(), "LresultFromObject");
    return toResult ? toResult(accessibleInterface, first, &object) : 0;
}

void* AccessibleOver::find(REFIID wanted) noexcept
{
    return ComObject::find(wanted == IID_IDispatch ? accessibleInterface : wanted);
}

HRESULT giveText(std::u16string_view text, BSTR* into) noexcept
{
    *into = text.empty() ? nullptr : SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size()));
    return *into ? S_OK : S_FALSE;
}

} // namespace vela::win32
