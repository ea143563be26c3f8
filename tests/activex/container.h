// A minimal OLE container of the tests: a real form window with sites whose every service can be left out.
#pragma once

#include "fields.h"
#include "library.h"

#include "apps/demo/container.h"

#include <oleidl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vela::test {

struct SiteOptions {
    bool inPlace = true;     // IOleInPlaceSite
    bool controlSite = true; // IOleControlSite
    bool ambients = true;    // IDispatch
    bool connectEvents = true;
    bool initialise = true; // IPersistStreamInit::InitNew
};

class Form;

// One control and its site. What the control asks and tells is kept in `log`, one word each.
class Site final : public ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch, IPropertyNotifySink> {
public:
    Site(Form& form, SiteOptions options) : form_(form), options_(options) {}

    void hold(ComPtr<IUnknown> control); // SetClientSite, InitNew, events
    HRESULT activate(RECT place);        // as visible controls are
    HRESULT activateInterface() { return activateBy(OLEIVERB_UIACTIVATE); }
    void close();   // Close, SetClientSite(null), release
    void abandon(); // release alone

    template <class Interface>
    [[nodiscard]] ComPtr<Interface> as() const
    {
        return query<Interface>(control_.Get());
    }
    [[nodiscard]] IUnknown* control() const noexcept { return control_.Get(); }
    [[nodiscard]] Automation automation() const { return Automation(control_.Get()); }
    [[nodiscard]] HWND window() const; // of the control
    [[nodiscard]] HWND edit() const;   // its edit box

    std::vector<std::string> log;
    std::map<DISPID, Variant> ambients;
    std::function<void(DISPID, DISPPARAMS&)> onEvent;
    std::function<void(const char*)> onCall; // inside each call that is logged
    std::function<HRESULT(MSG*)> onKey;      // IOleControlSite::TranslateAccelerator
    ComPtr<IDispatch> extender;
    bool refuseEdits = false;
    HRESULT eventResult = S_OK;

    [[nodiscard]] int count(std::string_view word) const;

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return note("SaveObject"); }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override
    {
        called("GetMoniker");
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return note("ShowObject"); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return note("CanInPlaceActivate"); }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return note("OnInPlaceActivate"); }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override;
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                               LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return note("OnUIDeactivate"); }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return note("OnInPlaceDeactivate"); }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return S_OK; }
    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return note("OnControlInfoChanged"); }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message, DWORD) override
    {
        if (FAILED(called("TranslateAccelerator")))
            return E_FAIL;
        return onKey ? onKey(message) : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL has) override { return note(has ? "OnFocus 1" : "OnFocus 0"); }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override
    {
        return whenCalled ? called("ShowPropertyFrame") : E_NOTIMPL;
    }
    // IDispatch: ambients; another identity takes the events
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override;
    // IPropertyNotifySink
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override { return note("changed " + std::to_string(id)); }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID id) override;

protected:
    [[nodiscard]] void* find(REFIID iid) noexcept override;

private:
    HRESULT note(std::string word);
    HRESULT activateBy(LONG verb);

    Form& form_;
    SiteOptions options_;
    ComPtr<IUnknown> control_;
    Connection events_;
    Connection properties_;
    RECT place_{};
};

// The window with its sites, a dialog-like message loop, and the frame's side of in-place activation.
class Form {
public:
    Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form();

    Site& add(SiteOptions options = {}, const wchar_t* progId = L"Vela.Vela");
    Site& addActive(const wchar_t* progId = L"Vela.Vela"); // in place, one below the other
    void remove(Site& site);                               // closed and let go
    [[nodiscard]] HWND window() const noexcept { return window_; }
    [[nodiscard]] const ComPtr<demo::FormFrame>& frame() const noexcept { return frame_; }
    [[nodiscard]] ComPtr<IOleInPlaceFrame> handedFrame() const noexcept { return handedFrame_; } // to controls
    [[nodiscard]] IOleInPlaceActiveObject* active() const noexcept;

    // A key to the focused window through the form's loop: the active object first, then the dialog keys.
    void press(WPARAM key);
    void type(std::u16string_view text); // characters, composed
    void run();                          // what waits in the queue
    void focus(Site& site);
    void destroyWindow();

private:
    HWND window_ = nullptr;
    ComPtr<demo::FormFrame> frame_;
    ComPtr<IOleInPlaceFrame> handedFrame_; // notes its calls, then passes them on
    std::vector<ComPtr<Site>> sites_;
};

} // namespace vela::test
