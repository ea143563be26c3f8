// An object of one COM interface that goes with its last reference. Made with one; safe on any thread.
#pragma once

#include "platform/win32/module.h"

#include <unknwn.h>

#include <atomic>

namespace vela::win32 {

// A class of an interface that inherits from another than IUnknown overrides answersTo.
template <class Interface>
class ComObject : public Interface {
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** found) noexcept final
    {
        if (!found)
            return E_POINTER;
        *found = nullptr;
        if (!IsEqualIID(wanted, IID_IUnknown) && !answersTo(wanted))
            return E_NOINTERFACE;
        *found = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept final
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~ComObject() = default;
    [[nodiscard]] virtual bool answersTo(REFIID wanted) const noexcept
    {
        return IsEqualIID(wanted, __uuidof(Interface));
    }

private:
    ModuleUse use_;
    std::atomic<ULONG> references_{1};
};

} // namespace vela::win32
