// A COM object of the tests: counts its references and all objects alive.
#pragma once

#include "activex/com/owners.h"

#include <ocidl.h>

#include <atomic>
#include <functional>
#include <utility>

namespace vela::test {

using activex::asText;
using activex::asWide;
using activex::Bstr;
using activex::ComPtr;
using activex::Variant;

inline std::atomic<int> liveObjects{0};

// Told of each call to an object of the tests, by name, for those that do harm inside it; a failure that this answers
// is the call's answer.
inline std::function<HRESULT(const char* call)> whenCalled;

inline HRESULT called(const char* call)
{
    return whenCalled ? whenCalled(call) : S_OK;
}

template <class First, class... Rest>
class ComObject : public First, public Rest... {
public:
    ComObject() { ++liveObjects; }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    virtual ~ComObject() { --liveObjects; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override
    {
        *object = nullptr;
        if (FAILED(called("QueryInterface")) || !offers(iid))
            return E_NOINTERFACE;
        if (iid == IID_IUnknown || iid == __uuidof(First))
            *object = static_cast<First*>(this);
        else
            ((iid == __uuidof(Rest) ? void(*object = static_cast<Rest*>(this)) : void()), ...);
        if (!*object)
            *object = also(iid);
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual bool offers(REFIID) { return true; }   // hides an interface from the control
    virtual void* also(REFIID) { return nullptr; } // under another identity

private:
    ULONG references_ = 1;
};

// An object that is called by number only.
class Dispatch : public ComObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
};

template <class Object, class... Arguments>
ComPtr<Object> make(Arguments&&... arguments)
{
    return ComPtr<Object>::adopt(new Object(std::forward<Arguments>(arguments)...));
}

// A sink at one of an object's connection points, while this lives.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(); }

    bool open(IUnknown* source, REFIID events, IUnknown* sink)
    {
        const auto container = ComPtr<IConnectionPointContainer>::from(source);
        return container && SUCCEEDED(container->FindConnectionPoint(events, point_.put())) &&
               SUCCEEDED(point_->Advise(sink, &cookie_));
    }
    HRESULT close()
    {
        const auto point = std::exchange(point_, {});
        return point ? point->Unadvise(cookie_) : S_FALSE;
    }
    void forget() { point_.reset(); } // as hosts do that release a source without a word

private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vela::test
