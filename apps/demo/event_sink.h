// Receives a control's events and hands on their names.
#pragma once

#include "apps/demo/container.h"

#include <map>

namespace vela::demo {

class EventSink final : public NumberedObject<IDispatch> {
public:
    // `events` describes the control's event interface; `id` is its interface id.
    EventSink(ITypeInfo* events, IID id, EventHandler handler);

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    [[nodiscard]] void* find(REFIID wanted) noexcept override
    {
        return NumberedObject::find(wanted == id_ ? IID_IDispatch : wanted);
    }

    ComPtr<ITypeInfo> events_;
    IID id_;
    EventHandler handler_;
    std::map<DISPID, std::wstring> names_;
};

// The event interface that the control declares as its default source; null when it declares none.
[[nodiscard]] ComPtr<ITypeInfo> sourceTypeInfo(IUnknown* control, IID& id);

} // namespace vela::demo
