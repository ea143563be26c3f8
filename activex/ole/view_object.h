// Pictures of the control for hosts that draw it themselves: design mode, print and preview.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class ViewObject final : public Part<IViewObjectEx> {
public:
    using Part::Part;

    void changed() noexcept; // tells the sink that the picture is another
    void putSink(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept;

    STDMETHODIMP Draw(DWORD aspect, LONG index, void* extra, DVTARGETDEVICE* target, HDC information, HDC dc,
                      LPCRECTL bounds, LPCRECTL window, BOOL(STDMETHODCALLTYPE* go)(ULONG_PTR),
                      ULONG_PTR argument) noexcept override;
    STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* extra, DVTARGETDEVICE* target, HDC information,
                             LOGPALETTE** colours) noexcept override;
    STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP Unfreeze(DWORD) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override;
    STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override;
    STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, LPSIZEL extent) noexcept override;
    STDMETHODIMP GetRect(DWORD aspect, LPRECTL rect) noexcept override;
    STDMETHODIMP GetViewStatus(DWORD* status) noexcept override;
    STDMETHODIMP QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG hint, DWORD* result) noexcept override;
    STDMETHODIMP QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG hint, DWORD* result) noexcept override;
    STDMETHODIMP GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, HDC information, DVEXTENTINFO* info,
                                  LPSIZEL extent) noexcept override;

private:
    ComPtr<IAdviseSink> sink_;
    DWORD aspects_ = 0;
    DWORD flags_ = 0;
};

} // namespace vela::activex
