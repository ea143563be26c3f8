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
class FormFrame : public CountedObject<IOleInPlaceFrame> {
public:
    explicit FormFrame(HWND window) : window_(window) {}

    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }
    STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override;
    STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL enable) override
    {
        modeless.push_back(enable != FALSE);
        return S_OK;
    }
    STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

    [[nodiscard]] IOleInPlaceActiveObject* activeObject() const noexcept { return active_.Get(); }
    // A new control of that name; the class object is asked for once.
    HRESULT create(const wchar_t* progId, ComPtr<IOleObject>& control);
    HRESULT font(IDispatch** font); // the form's, one for all

    std::vector<bool> modeless; // as controls asked for it: off before a box, on after it

protected:
    [[nodiscard]] void* find(REFIID wanted) noexcept override;

private:
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
class ControlSite
    : public NumberedObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch, IPropertyNotifySink> {
public:
    ControlSite(FormFrame& frame, HWND form, std::wstring name);

    // place: pixels of the form's client area. Settings go through the control's property bag; without one its new
    // instance is used.
    HRESULT open(const wchar_t* progId, RECT place, Settings settings, EventHandler handler = {});
    void close();
    [[nodiscard]] IDispatch* object() const noexcept { return object_.Get(); }
    [[nodiscard]] IUnknown* control() const noexcept { return control_.Get(); }
    template <class Interface>
    [[nodiscard]] ComPtr<Interface> as() const noexcept // of the control
    {
        return query<Interface>(control_.Get());
    }
    [[nodiscard]] HWND window() const;
    void takeFocus();
    HRESULT showProperties() { return activateBy(OLEIVERB_PROPERTIES); } // in the system's frame

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return S_OK; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleInPlaceSite
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override { return S_OK; }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place, LPRECT clip,
                                  LPOLEINPLACEFRAMEINFO info) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(LPCRECT place) override;
    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
    STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(LPMSG message, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
    // IDispatch: the ambient properties
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override;
    // IPropertyNotifySink
    STDMETHODIMP OnChanged(DISPID) override { return S_OK; }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

protected:
    [[nodiscard]] void* find(REFIID wanted) noexcept override;
    HRESULT activateBy(LONG verb) { return control_->DoVerb(verb, nullptr, this, 0, form_, &place_); }

    RECT place_{};
    ComPtr<IOleObject> control_;
    Connection events_;

private:
    HRESULT loadSettings(Settings settings);
    void connectEvents(EventHandler handler);

    ComPtr<FormFrame> frame_;
    HWND form_;
    std::wstring name_;
    ComPtr<IDispatch> object_;
};

} // namespace vela::demo
