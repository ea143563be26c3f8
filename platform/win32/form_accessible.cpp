// An accessible object over the system's own: the painted labels are its first children, the windows follow.
#include "platform/win32/form_accessible.h"

#include "platform/win32/com_object.h"
#include "platform/win32/guard.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

#include <oleauto.h>

#include <oleacc.h>

#include <utility>

namespace vela::win32 {
namespace {

using MakeStandard = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
using ToResult = LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*);

constexpr IID accessibleInterface{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

// Holds oleacc.dll, which makes the system's accessible objects, for as long as one of them is in use.
class Service {
public:
    Service() noexcept : library_(LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}
    template <class Function>
    [[nodiscard]] Function function(const char* name) const noexcept
    {
        const HMODULE library = library_.get();
        return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name))) : nullptr;
    }

private:
    UniqueLibrary library_;
};

HRESULT allocate(const std::u16string& text, BSTR* into) noexcept
{
    *into = text.empty() ? nullptr : SysAllocStringLen(wide(text.c_str()), static_cast<UINT>(text.size()));
    return *into ? S_OK : S_FALSE;
}

VARIANT number(LONG value) noexcept
{
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}

} // namespace

class FormAccessible final : public ComObject<IAccessible> {
public:
    FormAccessible(Service service, IAccessible& standard, SpokenForm& form) noexcept
        : service_(std::move(service)), standard_(standard), form_(&form)
    {
    }
    ~FormAccessible() override { standard_.Release(); }
    void disconnect() noexcept { form_ = nullptr; }

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
    STDMETHODIMP get_accChildCount(long* count) noexcept override
    {
        const HRESULT result = standard_.get_accChildCount(count);
        if (SUCCEEDED(result))
            *count += static_cast<long>(labels().size());
        return result;
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        return label(child) ? S_FALSE : standard_.get_accChild(behind(child), object);
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        return spoken ? allocate(spoken->name, name) : standard_.get_accName(behind(child), name);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) noexcept override
    {
        return label(child) ? S_FALSE : standard_.get_accValue(behind(child), value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : standard_.get_accDescription(behind(child), text);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return standard_.get_accRole(behind(child), role);
        *role = number(spoken->cell ? ROLE_SYSTEM_CELL : ROLE_SYSTEM_STATICTEXT);
        return S_OK;
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return standard_.get_accState(behind(child), state);
        *state = number(spoken->enabled ? STATE_SYSTEM_READONLY : STATE_SYSTEM_UNAVAILABLE);
        return S_OK;
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : standard_.get_accHelp(behind(child), text);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) noexcept override
    {
        return label(child) ? S_FALSE : standard_.get_accHelpTopic(file, behind(child), topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : standard_.get_accKeyboardShortcut(behind(child), text);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) noexcept override { return standard_.get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) noexcept override { return standard_.get_accSelection(children); }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return standard_.get_accDefaultAction(behind(child), action);
        return allocate(spoken->cell ? u"Escolher" : u"", action);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) noexcept override
    {
        return label(child) ? E_INVALIDARG : standard_.accSelect(flags, behind(child));
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return standard_.accLocation(left, top, width, height, behind(child));
        *left = spoken->screen.left;
        *top = spoken->screen.top;
        *width = spoken->screen.right - spoken->screen.left;
        *height = spoken->screen.bottom - spoken->screen.top;
        return S_OK;
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) noexcept override
    {
        return label(start) ? S_FALSE : standard_.accNavigate(direction, behind(start), end);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) noexcept override
    {
        const std::vector<SpokenLabel>& all = labels();
        for (std::size_t i = all.size(); i-- > 0;)
            if (PtInRect(&all[i].screen, POINT{x, y})) {
                *child = number(static_cast<LONG>(i) + 1);
                return S_OK;
            }
        return standard_.accHitTest(x, y, child);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return standard_.accDoDefaultAction(behind(child));
        const int widget = spoken->widget;
        contained([this, widget] { form_->clickLabel(widget); }); // may be the end of the form
        return S_OK;
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) noexcept override { return E_NOTIMPL; }

private:
    const std::vector<SpokenLabel>& labels() noexcept
    {
        contained([this] { labels_ = form_ ? form_->spokenLabels() : std::vector<SpokenLabel>{}; });
        return labels_;
    }
    // Child 1 is the first label. Null for the form itself and for its windows.
    const SpokenLabel* label(const VARIANT& child) noexcept
    {
        if (child.vt != VT_I4 || child.lVal < 1)
            return nullptr;
        const std::vector<SpokenLabel>& all = labels();
        const auto index = static_cast<std::size_t>(child.lVal) - 1;
        return index < all.size() ? &all[index] : nullptr;
    }
    [[nodiscard]] bool answersTo(REFIID wanted) const noexcept override
    {
        return IsEqualIID(wanted, IID_IDispatch) || IsEqualIID(wanted, accessibleInterface);
    }
    // The number of a child that is a window, as the system's own object counts it.
    [[nodiscard]] VARIANT behind(VARIANT child) const noexcept
    {
        if (child.vt == VT_I4 && child.lVal > 0)
            child.lVal -= static_cast<LONG>(labels_.size());
        return child;
    }

    Service service_;
    IAccessible& standard_; // held
    SpokenForm* form_;
    std::vector<SpokenLabel> labels_; // as of the last question
};

LRESULT FormSpeech::answer(HWND window, WPARAM first, SpokenForm& form)
{
    Service service;
    const auto toResult = service.function<ToResult>("LresultFromObject");
    const auto makeStandard = service.function<MakeStandard>("CreateStdAccessibleObject");
    if (!toResult || !makeStandard)
        return 0;
    if (!object_) {
        void* standard = nullptr;
        if (FAILED(makeStandard(window, OBJID_CLIENT, accessibleInterface, &standard)) || !standard)
            return 0;
        object_ = new FormAccessible(std::move(service), *static_cast<IAccessible*>(standard), form);
    }
    return toResult(accessibleInterface, first, object_);
}

void FormSpeech::forget() noexcept
{
    if (!object_)
        return;
    object_->disconnect();
    object_->Release();
    object_ = nullptr;
}

} // namespace vela::win32
