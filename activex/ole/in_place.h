// The control's window in the host's: its place, and the keys that come through the host's message loop.
#pragma once

#include "activex/com/part.h"

#include <oleidl.h>

namespace vela::activex {

class Shell;

class InPlaceObject final : public Part<IOleInPlaceObject> {
public:
    explicit InPlaceObject(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) noexcept override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override;

private:
    Shell& shell_;
};

class ActiveObject final : public Part<IOleInPlaceActiveObject> {
public:
    explicit ActiveObject(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
    // The host's site first; Tab stays with the container; the edit box's own keys go straight to it.
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) noexcept override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL active) noexcept override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL active) noexcept override;
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) noexcept override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) noexcept override;

    [[nodiscard]] WPARAM translated() const noexcept { return translated_; } // the key under way here; 0 for none

private:
    Shell& shell_;
    WPARAM translated_ = 0;
};

} // namespace vela::activex
