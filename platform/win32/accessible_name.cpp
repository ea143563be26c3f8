// Names windows through the system's annotation service, or by an object over the system's own.
#include "platform/win32/accessible_name.h"

#include "platform/win32/accessible_over.h"
#include "platform/win32/text.h"

#include <string>

namespace vela::win32 {
namespace {

constexpr GUID accessibleNameProperty{0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};
constexpr CLSID annotationService{0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr IID annotationInterface{0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};

class NamedAccessible final : public AccessibleOver {
public:
    NamedAccessible(IAccessible& standard, std::u16string_view name) : AccessibleOver(standard), name_(name) {}

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override
    {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF)
            return AccessibleOver::get_accName(child, name);
        return name ? giveText(name_, name) : E_POINTER;
    }

private:
    std::u16string name_;
};

} // namespace

bool setAccessibleName(HWND window, std::u16string_view name)
{
    void* found = nullptr;
    if (FAILED(CoCreateInstance(annotationService, nullptr, CLSCTX_INPROC_SERVER, annotationInterface, &found)))
        return false;
    auto* service = static_cast<IAccPropServices*>(found);
    const HRESULT result = service->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                                   accessibleNameProperty, wide(name).c_str());
    service->Release();
    return SUCCEEDED(result);
}

LRESULT namedAnswer(HWND window, WPARAM first, LPARAM second, std::u16string_view name)
{
    const AccessibleService service;
    IAccessible* const standard = static_cast<LONG>(second) == OBJID_CLIENT ? service.standardOf(window) : nullptr;
    if (!standard)
        return 0;
    auto* object = new NamedAccessible(*standard, name);
    const LRESULT answer = service.answer(first, *object);
    object->Release();
    return answer;
}

} // namespace vela::win32
