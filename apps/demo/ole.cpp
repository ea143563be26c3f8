// Dispatch calls by name.
#include "apps/demo/ole.h"

namespace vela::demo {

namespace {

HRESULT invoke(IDispatch* object, const wchar_t* name, WORD kind, DISPPARAMS& parameters, VARIANT* result)
{
    if (!object)
        return E_POINTER;
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<wchar_t*>(name);
    if (const HRESULT found = object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id); FAILED(found))
        return found;
    EXCEPINFO failure{};
    const HRESULT done =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, &failure, nullptr);
    SysFreeString(failure.bstrSource);
    SysFreeString(failure.bstrDescription);
    SysFreeString(failure.bstrHelpFile);
    return done == DISP_E_EXCEPTION ? failure.scode : done;
}

} // namespace

std::wstring OleValue::text() const
{
    if (value_.vt == VT_EMPTY)
        return L"(Empty)";
    OleValue converted;
    if (FAILED(convertTo(converted.put(), VT_BSTR)))
        return L"?";
    return std::wstring(converted.value_.bstrVal, SysStringLen(converted.value_.bstrVal));
}

HRESULT getByName(IDispatch* object, const wchar_t* name, OleValue& result)
{
    DISPPARAMS none{};
    return invoke(object, name, DISPATCH_PROPERTYGET, none, result.put());
}

HRESULT putByName(IDispatch* object, const wchar_t* name, const OleValue& value)
{
    VARIANT argument = value.get();
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument, &put, 1, 1};
    return invoke(object, name, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

} // namespace vela::demo
