// IQuickActivate: host and control exchange in one call what each needs to know of the other.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class FastActivation final : public Part<IQuickActivate> {
public:
    explicit FastActivation(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL extent) noexcept override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL extent) noexcept override;

private:
    Shell& shell_;
};

} // namespace vela::activex
