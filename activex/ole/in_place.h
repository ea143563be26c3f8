// The control's window in the host's: its place, and the keys that come through the host's message loop.
#pragma once

#include "activex/com/part.h"

#include <oleidl.h>

namespace vela::activex {

HRESULT windowOf(Shell& shell, HWND* window) noexcept; // of the control

class InPlaceObject final : public Part<IOleInPlaceObject> {
public:
    using Part::Part;

    STDMETHODIMP GetWindow(HWND* window) noexcept override { return windowOf(shell_, window); }
    STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP InPlaceDeactivate() noexcept override;
    STDMETHODIMP UIDeactivate() noexcept override;
    STDMETHODIMP SetObjectRects(LPCRECT place, LPCRECT clip) noexcept override;
    STDMETHODIMP ReactivateAndUndo() noexcept override { return INPLACE_E_NOTUNDOABLE; }
};

class ActiveObject final : public Part<IOleInPlaceActiveObject> {
public:
    using Part::Part;

    STDMETHODIMP GetWindow(HWND* window) noexcept override { return windowOf(shell_, window); }
    STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
    // The host's site first; Tab stays with the container; the edit box's own keys go straight to it.
    STDMETHODIMP TranslateAccelerator(LPMSG message) noexcept override;
    STDMETHODIMP OnFrameWindowActivate(BOOL) noexcept override { return S_OK; }
    STDMETHODIMP OnDocWindowActivate(BOOL) noexcept override { return S_OK; }
    STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) noexcept override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) noexcept override { return S_OK; }

    [[nodiscard]] WPARAM translated() const noexcept { return translated_; } // the key under way here; 0 for none

private:
    WPARAM translated_ = 0;
};

} // namespace vela::activex
