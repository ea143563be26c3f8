// What a control tells of its class: type information, event interface, error information, pages.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class ClassInfo final : public Part<IProvideClassInfo2> {
public:
    using Part::Part;

    STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* id) noexcept override;
};

class ErrorSupport final : public Part<ISupportErrorInfo> {
public:
    using Part::Part;

    // Every interface of the control reports its errors in full.
    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID) noexcept override { return S_OK; }
};

class PageList final : public Part<ISpecifyPropertyPages> {
public:
    using Part::Part;

    STDMETHODIMP GetPages(CAUUID* pages) noexcept override;
};

} // namespace vela::activex
