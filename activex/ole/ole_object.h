// The control as an OLE object: its site, verbs, size and closing.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"
#include "activex/identities.h"

#include <oleidl.h>

namespace vela::activex {

using identity::miscStatus;

class OleObject final : public Part<IOleObject> {
public:
    using Part::Part;

    void saved() noexcept; // tells those who asked to be told
    void closed() noexcept;
    HRESULT showProperties(HWND parent);

    STDMETHODIMP SetClientSite(IOleClientSite* site) noexcept override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) noexcept override;
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) noexcept override { return S_OK; }
    STDMETHODIMP Close(DWORD option) noexcept override;
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
    STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                        LPCRECT place) noexcept override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
    STDMETHODIMP Update() noexcept override { return S_OK; }
    STDMETHODIMP IsUpToDate() noexcept override { return S_OK; }
    STDMETHODIMP GetUserClassID(CLSID* id) noexcept override;
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* type) noexcept override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
    STDMETHODIMP Unadvise(DWORD connection) noexcept override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** connections) noexcept override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
    STDMETHODIMP SetColorScheme(LOGPALETTE*) noexcept override { return E_NOTIMPL; }

private:
    ComPtr<IOleAdviseHolder> advised_;
};

} // namespace vela::activex
