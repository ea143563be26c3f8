// A plain OLE container for controls: one site a control, as any form host has it.
#pragma once

#include "apps/demo/settings_bag.h"

#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <vector>

namespace vela::demo {

// The form's window as controls see it: border space is refused, menus and status texts are ignored.
class FormFrame final : public IOleInPlaceFrame {
public:
    explicit FormFrame(HWND window) : window_(window) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override;
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override
    {
        modeless.push_back(enable != FALSE);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

    [[nodiscard]] IOleInPlaceActiveObject* activeObject() const noexcept { return active_.Get(); }
    // A new control of that name; the class object is asked for once.
    HRESULT create(const wchar_t* progId, ComPtr<IOleObject>& control);
    HRESULT font(IDispatch** font); // the form's, one for all

    std::vector<bool> modeless; // as controls asked for it: off before a box, on after it

private:
    ~FormFrame() = default;
    ULONG references_ = 1;
    HWND window_;
    ComPtr<IOleInPlaceActiveObject> active_;
    std::wstring progId_;
    ComPtr<IClassFactory> factory_; // of progId_
    ComPtr<IDispatch> font_;
};

// Called with an event's DISPID; the name is the one the control's type information gives it.
using EventHandler = std::function<void(const std::wstring& name)>;

// One control on the form. Created, loaded from its settings and activated by open(); closed by close() or the last
// Release.
class ControlSite final : public IOleClientSite,
                          public IOleInPlaceSite,
                          public IOleControlSite,
                          public IDispatch,
                          public IPropertyNotifySink {
public:
    ControlSite(FormFrame& frame, HWND form, std::wstring name);

    // place: pixels of the form's client area. Settings go through the control's property bag; without one its new
    // instance is used.
    HRESULT open(const wchar_t* progId, RECT place, Settings settings, EventHandler handler = {});
    void close();
    [[nodiscard]] IDispatch* object() const noexcept { return object_.Get(); }
    [[nodiscard]] IUnknown* unknown() const noexcept { return control_.Get(); }
    [[nodiscard]] HWND window() const;
    void takeFocus();

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                               LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT place) override;
    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message, DWORD modifiers) override;
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }
    // IDispatch: the ambient properties
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override;
    // IPropertyNotifySink
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

private:
    ~ControlSite() = default;
    HRESULT loadSettings(Settings settings);
    void connectEvents(EventHandler handler);

    ULONG references_ = 1;
    ComPtr<FormFrame> frame_;
    HWND form_;
    std::wstring name_;
    RECT place_{};
    ComPtr<IOleObject> control_;
    ComPtr<IDispatch> object_;
    ComPtr<IConnectionPoint> eventSource_;
    DWORD eventCookie_ = 0;
};

} // namespace vela::demo
