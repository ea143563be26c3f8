// A COM object of the tests: counts its references and all objects alive.
#pragma once

#include "activex/com/owners.h"
#include "apps/demo/ole.h"
#include "tests/support/windows.h"

#include <ocidl.h>

#include <atomic>
#include <functional>
#include <utility>

namespace vela::test {

using activex::asText;
using activex::Bstr;
using activex::Variant;
using demo::Connection;
using win32::adopt;
using win32::ComPtr;
using win32::make;
using win32::query;
using win32::wide;

inline std::atomic<int> liveObjects{0};

// Told of each call to an object of the tests, by name; a failure that this answers is the call's answer.
inline std::function<HRESULT(const char* call)> whenCalled;

inline HRESULT called(const char* call)
{
    return whenCalled ? whenCalled(call) : S_OK;
}

class LiveObject : Fixed {
public:
    LiveObject() { ++liveObjects; }
    ~LiveObject() { --liveObjects; }
};

template <class... Interfaces>
class ComObject : public win32::CountedObject<Interfaces...>, private LiveObject {
protected:
    [[nodiscard]] void* find(REFIID iid) noexcept override
    {
        return FAILED(called("QueryInterface")) ? nullptr : win32::CountedObject<Interfaces...>::find(iid);
    }
};

// An object that is called by number only.
class Dispatch : public ComObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
};

} // namespace vela::test
