// IQuickActivate: host and control exchange in one call what each needs to know of the other.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class FastActivation final : public Part<IQuickActivate> {
public:
    using Part::Part;

    STDMETHODIMP QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
    STDMETHODIMP SetContentExtent(LPSIZEL extent) noexcept override;
    STDMETHODIMP GetContentExtent(LPSIZEL extent) noexcept override;
};

} // namespace vela::activex
