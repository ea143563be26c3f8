// Finding a control's event interface, and listening to it.
#include "apps/demo/event_sink.h"

namespace vela::demo {

namespace {

ComPtr<ITypeInfo> defaultSource(ITypeInfo* coclass)
{
    TYPEATTR* attributes = nullptr;
    if (FAILED(coclass->GetTypeAttr(&attributes)))
        return {};
    const UINT count = attributes->cImplTypes;
    coclass->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        INT flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> found;
        if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags)) &&
            (flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) ==
                (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE) &&
            SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference)) &&
            SUCCEEDED(coclass->GetRefTypeInfo(reference, &found)))
            return found;
    }
    return {};
}

} // namespace

EventSink::EventSink(ITypeInfo* events, IID id, EventHandler handler)
    : events_(events), id_(id), handler_(std::move(handler))
{
}

HRESULT EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*)
{
    auto name = names_.find(id);
    if (name == names_.end()) {
        BSTR text = nullptr;
        UINT count = 0;
        if (FAILED(events_->GetNames(id, &text, 1, &count)) || count == 0)
            return DISP_E_MEMBERNOTFOUND;
        name = names_.emplace(id, std::wstring(text, SysStringLen(text))).first;
        SysFreeString(text);
    }
    if (handler_)
        handler_(name->second);
    return S_OK;
}

ComPtr<ITypeInfo> sourceTypeInfo(IUnknown* control, IID& id)
{
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> coclass;
    if (FAILED(control->QueryInterface(IID_PPV_ARGS(&provider))) || FAILED(provider->GetClassInfo(&coclass)))
        return {};
    ComPtr<ITypeInfo> events = defaultSource(coclass.Get());
    TYPEATTR* attributes = nullptr;
    if (!events || FAILED(events->GetTypeAttr(&attributes)))
        return {};
    id = attributes->guid;
    events->ReleaseTypeAttr(attributes);
    return events;
}

} // namespace vela::demo
