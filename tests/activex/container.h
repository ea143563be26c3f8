// The demonstration's OLE container in the tests: a real form window with sites whose every service can be left out,
// and whose calls are heard.
#pragma once

#include "fields.h"
#include "library.h"

#include "apps/demo/container.h"

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
class Site final : public demo::ControlSite, private LiveObject {
public:
    Site(Form& form, SiteOptions options);

    void hold(ComPtr<IUnknown> control); // SetClientSite, InitNew, events
    HRESULT activate(RECT place);        // as visible controls are
    HRESULT activateInterface() { return activateBy(OLEIVERB_UIACTIVATE); }
    void close();   // Close, SetClientSite(null), release
    void abandon(); // release alone

    [[nodiscard]] Automation automation() const { return Automation(control()); }
    [[nodiscard]] HWND edit() const; // its edit box

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
    STDMETHODIMP SaveObject() override { return note("SaveObject"); }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override
    {
        called("GetMoniker");
        return E_NOTIMPL;
    }
    STDMETHODIMP ShowObject() override { return note("ShowObject"); }
    // IOleInPlaceSite
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP CanInPlaceActivate() override { return note("CanInPlaceActivate"); }
    STDMETHODIMP OnInPlaceActivate() override { return note("OnInPlaceActivate"); }
    STDMETHODIMP OnUIActivate() override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place, LPRECT clip,
                                  LPOLEINPLACEFRAMEINFO info) override;
    STDMETHODIMP OnUIDeactivate(BOOL) override { return note("OnUIDeactivate"); }
    STDMETHODIMP OnInPlaceDeactivate() override { return note("OnInPlaceDeactivate"); }
    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return note("OnControlInfoChanged"); }
    STDMETHODIMP GetExtendedControl(IDispatch** object) override;
    STDMETHODIMP TranslateAccelerator(LPMSG message, DWORD) override
    {
        if (FAILED(called("TranslateAccelerator")))
            return E_FAIL;
        return onKey ? onKey(message) : S_FALSE;
    }
    STDMETHODIMP OnFocus(BOOL has) override { return note(has ? "OnFocus 1" : "OnFocus 0"); }
    STDMETHODIMP ShowPropertyFrame() override { return whenCalled ? called("ShowPropertyFrame") : E_NOTIMPL; }
    // IDispatch: ambients; another identity takes the events
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override;
    // IPropertyNotifySink
    STDMETHODIMP OnChanged(DISPID id) override { return note("changed " + std::to_string(id)); }
    STDMETHODIMP OnRequestEdit(DISPID id) override;

protected:
    [[nodiscard]] void* find(REFIID iid) noexcept override;

private:
    HRESULT note(std::string word);

    Form& form_;
    SiteOptions options_;
    Connection properties_;
};

// The window with its sites, a dialog-like message loop, and the frame's side of in-place activation.
class Form final : Fixed, public Loop {
public:
    Form();
    ~Form();

    Site& add(SiteOptions options = {}, const wchar_t* progId = L"Vela.Vela");
    Site& addActive(const wchar_t* progId = L"Vela.Vela"); // in place, one below the other
    void remove(Site& site);                               // closed and let go
    [[nodiscard]] HWND window() const noexcept { return window_; }
    [[nodiscard]] const ComPtr<demo::FormFrame>& frame() const noexcept { return frame_; }
    [[nodiscard]] IOleInPlaceActiveObject* active() const noexcept;

    // A key to the focused window through the form's loop: the active object first, then the dialog keys.
    void press(WPARAM key);
    void type(std::u16string_view text); // characters, composed
    void run() override;
    void focus(Site& site);
    void destroyWindow();

private:
    HWND window_ = nullptr;
    ComPtr<demo::FormFrame> frame_;
    std::vector<ComPtr<Site>> sites_;
};

} // namespace vela::test
