// The control as an OLE object: its site, verbs, size and closing.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"
#include "activex/identities.h"

#include <oleidl.h>

namespace vela::activex {

class Shell;

using identity::miscStatus;

class OleObject final : public Part<IOleObject> {
public:
    explicit OleObject(Shell& shell) noexcept;

    void saved() noexcept; // tells those who asked to be told
    void closed() noexcept;
    HRESULT showProperties(HWND parent);

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR application, LPCOLESTR object) noexcept override;
    HRESULT STDMETHODCALLTYPE Close(DWORD option) noexcept override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation, DWORD reserved) noexcept override;
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                                     LPCRECT place) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
    HRESULT STDMETHODCALLTYPE Update() noexcept override;
    HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override;
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* type) noexcept override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** connections) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) noexcept override;

private:
    Shell& shell_;
    ComPtr<IOleAdviseHolder> advised_;
};

} // namespace vela::activex
