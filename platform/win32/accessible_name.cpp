// Names windows through the system's annotation service, or by an object over the system's own.
#include "platform/win32/accessible_name.h"

#include "platform/win32/com_object.h"
#include "platform/win32/text.h"

#include <oleauto.h>

#include <oleacc.h>

#include <string>

namespace vela::win32 {
namespace {

constexpr GUID accessibleNameProperty{0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};
constexpr CLSID annotationService{0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr IID annotationInterface{0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr IID accessibleInterface{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

using MakeStandard = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
using ToResult = LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*);

template <class Function>
Function serviceFunction(const char* name) noexcept
{
    static const HMODULE service = LoadLibraryW(L"oleacc.dll");
    return service ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(service, name))) : nullptr;
}

// Everything but the name is the system's answer.
class NamedAccessible final : public ComObject<IAccessible> {
public:
    NamedAccessible(IAccessible& standard, std::u16string_view name) : standard_(standard), name_(name) {}
    ~NamedAccessible() override { standard_.Release(); }

    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return standard_.GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override
    {
        return standard_.GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP get_accParent(IDispatch** parent) noexcept override { return standard_.get_accParent(parent); }
    STDMETHODIMP get_accChildCount(long* count) noexcept override { return standard_.get_accChildCount(count); }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) noexcept override
    {
        return standard_.get_accChild(child, object);
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override
    {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF)
            return standard_.get_accName(child, name);
        if (!name)
            return E_POINTER;
        *name = SysAllocStringLen(wide(name_.c_str()), static_cast<UINT>(name_.size()));
        return *name ? S_OK : E_OUTOFMEMORY;
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) noexcept override
    {
        return standard_.get_accValue(child, value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) noexcept override
    {
        return standard_.get_accDescription(child, text);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) noexcept override
    {
        return standard_.get_accRole(child, role);
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) noexcept override
    {
        return standard_.get_accState(child, state);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) noexcept override { return standard_.get_accHelp(child, text); }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) noexcept override
    {
        return standard_.get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) noexcept override
    {
        return standard_.get_accKeyboardShortcut(child, text);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) noexcept override { return standard_.get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) noexcept override { return standard_.get_accSelection(children); }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) noexcept override
    {
        return standard_.get_accDefaultAction(child, action);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) noexcept override { return standard_.accSelect(flags, child); }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) noexcept override
    {
        return standard_.accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) noexcept override
    {
        return standard_.accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) noexcept override
    {
        return standard_.accHitTest(x, y, child);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) noexcept override { return standard_.accDoDefaultAction(child); }
    STDMETHODIMP put_accName(VARIANT, BSTR) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) noexcept override
    {
        return standard_.put_accValue(child, value);
    }

private:
    [[nodiscard]] bool answersTo(REFIID wanted) const noexcept override
    {
        return IsEqualIID(wanted, IID_IDispatch) || IsEqualIID(wanted, accessibleInterface);
    }

    IAccessible& standard_; // held
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
    const auto toResult = serviceFunction<ToResult>("LresultFromObject");
    const auto makeStandard = serviceFunction<MakeStandard>("CreateStdAccessibleObject");
    void* standard = nullptr;
    if (static_cast<LONG>(second) != OBJID_CLIENT || !toResult || !makeStandard ||
        FAILED(makeStandard(window, OBJID_CLIENT, accessibleInterface, &standard)) || !standard)
        return 0;
    auto* object = new NamedAccessible(*static_cast<IAccessible*>(standard), name);
    const LRESULT answer = toResult(accessibleInterface, first, object);
    object->Release();
    return answer;
}

} // namespace vela::win32
