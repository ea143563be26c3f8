// References to COM objects, held by the system's smart pointer, and objects that go with their last reference. Needs
// nothing of the library but, for its own objects, module.h.
#pragma once

#include "platform/win32/module.h"

#include <wrl/client.h>

#include <atomic>
#include <type_traits>
#include <utility>

namespace vela::win32 {

using Microsoft::WRL::ComPtr;

// Takes a reference over. ComPtr::Attach() does not in the system header that this is built with: it counts another
// one.
template <class Object>
[[nodiscard]] ComPtr<Object> adopt(std::type_identity_t<Object>* object) noexcept
{
    ComPtr<Object> owner;
    *owner.GetAddressOf() = object;
    return owner;
}

template <class Object, class... Arguments>
[[nodiscard]] ComPtr<Object> make(Arguments&&... arguments)
{
    return adopt<Object>(new Object(std::forward<Arguments>(arguments)...));
}

// The interface of another object; empty when the object is null or does not offer it.
template <class Interface>
[[nodiscard]] ComPtr<Interface> query(IUnknown* object, REFIID iid = __uuidof(Interface)) noexcept
{
    void* found = nullptr;
    return adopt<Interface>(object && SUCCEEDED(object->QueryInterface(iid, &found)) ? static_cast<Interface*>(found)
                                                                                     : nullptr);
}

// An object of these interfaces, made with one reference; safe on any thread.
template <class First, class... Rest>
class CountedObject : public First, public Rest... {
public:
    CountedObject() = default;
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** found) noexcept final
    {
        if (!found)
            return E_POINTER;
        *found = find(wanted);
        if (!*found)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept final
    {
        const ULONG left = --references_;
        if (left == 0) {
            references_ = 1; // what its destructor calls may hold it for a while
            delete this;
        }
        return left;
    }

protected:
    virtual ~CountedObject() = default;

    // A class of an interface that inherits from another than IUnknown adds that one.
    [[nodiscard]] virtual void* find(REFIID wanted) noexcept
    {
        void* found = wanted == __uuidof(IUnknown) || wanted == __uuidof(First) ? static_cast<First*>(this) : nullptr;
        ((found = wanted == __uuidof(Rest) ? static_cast<Rest*>(this) : found), ...);
        return found;
    }

private:
    std::atomic<ULONG> references_{1};
};

// An object of the library, which stays loaded as long as the object lives.
template <class... Interfaces>
class ComObject : public CountedObject<Interfaces...> {
    ModuleUse use_;
};

} // namespace vela::win32
