// Mnemonics, changes of the host's ambient properties, and freezing of events.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class OleControl final : public Part<IOleControl> {
public:
    explicit OleControl(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) noexcept override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) noexcept override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID id) noexcept override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) noexcept override;

private:
    Shell& shell_;
};

} // namespace vela::activex
