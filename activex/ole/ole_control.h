// Mnemonics, changes of the host's ambient properties, and freezing of events.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class OleControl final : public Part<IOleControl> {
public:
    using Part::Part;

    STDMETHODIMP GetControlInfo(CONTROLINFO* info) noexcept override;
    STDMETHODIMP OnMnemonic(MSG* message) noexcept override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) noexcept override;
    STDMETHODIMP FreezeEvents(BOOL freeze) noexcept override;
};

} // namespace vela::activex
