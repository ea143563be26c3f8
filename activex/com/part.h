// One interface of a larger object: its references and its other interfaces are the object's.
#pragma once

#include <unknwn.h>

namespace vela::activex {

template <class Interface>
class Part : public Interface {
public:
    explicit Part(IUnknown& whole) noexcept : whole_(whole) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept final
    {
        return whole_.QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept final { return whole_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept final { return whole_.Release(); }

protected:
    ~Part() = default;

private:
    IUnknown& whole_;
};

} // namespace vela::activex
