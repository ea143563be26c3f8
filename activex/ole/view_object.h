// Pictures of the control for hosts that draw it themselves: design mode, print and preview.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class ViewObject final : public Part<IViewObjectEx> {
public:
    explicit ViewObject(Shell& shell) noexcept;

    void changed() noexcept; // tells the sink that the picture is another
    void putSink(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept;

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* extra, DVTARGETDEVICE* target, HDC information,
                                   HDC dc, LPCRECTL bounds, LPCRECTL window, BOOL(STDMETHODCALLTYPE* go)(ULONG_PTR),
                                   ULONG_PTR argument) noexcept override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* extra, DVTARGETDEVICE* target,
                                          HDC information, LOGPALETTE** colours) noexcept override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* extra, DWORD* key) noexcept override;
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD key) noexcept override;
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target,
                                        LPSIZEL extent) noexcept override;
    HRESULT STDMETHODCALLTYPE GetRect(DWORD aspect, LPRECTL rect) noexcept override;
    HRESULT STDMETHODCALLTYPE GetViewStatus(DWORD* status) noexcept override;
    HRESULT STDMETHODCALLTYPE QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG hint,
                                            DWORD* result) noexcept override;
    HRESULT STDMETHODCALLTYPE QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG hint,
                                           DWORD* result) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, HDC information,
                                               DVEXTENTINFO* info, LPSIZEL extent) noexcept override;

private:
    Shell& shell_;
    ComPtr<IAdviseSink> sink_;
    DWORD aspects_ = 0;
    DWORD flags_ = 0;
};

} // namespace vela::activex
