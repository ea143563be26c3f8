// Receives a control's events and hands on their names.
#pragma once

#include "apps/demo/container.h"

#include <map>

namespace vela::demo {

class EventSink final : public IDispatch {
public:
    // `events` describes the control's event interface; `id` is its interface id.
    EventSink(ITypeInfo* events, IID id, EventHandler handler);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    ~EventSink() = default;
    ULONG references_ = 1;
    ComPtr<ITypeInfo> events_;
    IID id_;
    EventHandler handler_;
    std::map<DISPID, std::wstring> names_;
};

// The event interface that the control declares as its default source; null when it declares none.
[[nodiscard]] ComPtr<ITypeInfo> sourceTypeInfo(IUnknown* control, IID& id);

} // namespace vela::demo
