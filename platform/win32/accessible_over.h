// Accessible objects over the system's own, which answers whatever they do not know better.
#pragma once

#include "platform/win32/com_object.h"
#include "platform/win32/owners.h"

#include <windows.h>

#include <oleauto.h>

#include <oleacc.h>

#include <string_view>

namespace vela::win32 {

// Holds oleacc.dll, which makes the system's accessible objects, for as long as one of them is in use.
class AccessibleService {
public:
    AccessibleService() noexcept;
    [[nodiscard]] IAccessible* standardOf(HWND window) const noexcept; // its client object; null without the service
    [[nodiscard]] LRESULT answer(WPARAM first, IAccessible& object) const noexcept; // to WM_GETOBJECT; 0 without it

private:
    UniqueLibrary library_;
};

class AccessibleOver : public ComObject<IAccessible> {
public:
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
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override { return standard_.get_accName(child, name); }
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

protected:
    explicit AccessibleOver(IAccessible& standard) noexcept : standard_(standard) {} // takes the reference over
    ~AccessibleOver() override { standard_.Release(); }

private:
    [[nodiscard]] void* find(REFIID wanted) noexcept override;

    AccessibleService service_;
    IAccessible& standard_;
};

[[nodiscard]] HRESULT giveText(std::u16string_view text, BSTR* into) noexcept; // S_FALSE for an empty one

} // namespace vela::win32
