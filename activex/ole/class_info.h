// What a control tells of its class: type information, event interface, error information, pages.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class ClassInfo final : public Part<IProvideClassInfo2> {
public:
    explicit ClassInfo(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) noexcept override;

private:
    Shell& shell_;
};

class ErrorSupport final : public Part<ISupportErrorInfo> {
public:
    explicit ErrorSupport(IUnknown& whole) noexcept : Part(whole) {}

    // Every interface of the control reports its errors in full.
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID) noexcept override { return S_OK; }
};

class PageList final : public Part<ISpecifyPropertyPages> {
public:
    explicit PageList(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) noexcept override;

private:
    Shell& shell_;
};

} // namespace vela::activex
