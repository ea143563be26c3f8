// A COM object of the tests: counts its references and all objects alive.
#pragma once

#include "activex/com/owners.h"

#include <ocidl.h>

#include <atomic>
#include <functional>
#include <utility>

namespace vela::test {

using activex::asText;
using activex::Bstr;
using activex::Variant;
using win32::adopt;
using win32::ComPtr;
using win32::make;
using win32::query;
using win32::wide;

inline std::atomic<int> liveObjects{0};

// Told of each call to an object of the tests, by name, for those that do harm inside it; a failure that this answers
// is the call's answer.
inline std::function<HRESULT(const char* call)> whenCalled;

inline HRESULT called(const char* call)
{
    return whenCalled ? whenCalled(call) : S_OK;
}

template <class... Interfaces>
class ComObject : public win32::CountedObject<Interfaces...> {
public:
    ComObject() { ++liveObjects; }
    ~ComObject() override { --liveObjects; }

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

// A sink at one of an object's connection points, while this lives.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(); }

    bool open(IUnknown* source, REFIID events, IUnknown* sink)
    {
        const auto container = query<IConnectionPointContainer>(source);
        return container && SUCCEEDED(container->FindConnectionPoint(events, &point_)) &&
               SUCCEEDED(point_->Advise(sink, &cookie_));
    }
    HRESULT close()
    {
        const auto point = std::exchange(point_, {});
        return point ? point->Unadvise(cookie_) : S_FALSE;
    }
    void forget() { point_.Reset(); } // as hosts do that release a source without a word

private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vela::test
