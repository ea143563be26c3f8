// Late-bound reading and writing of properties.
#include "activex/dispatch_object.h"

#include "activex/com/guard.h"
#include "activex/com/variants.h"

namespace vela::activex {

namespace {

void invoke(IDispatch& object, DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result)
{
    EXCEPINFO info{};
    const HRESULT outcome =
        object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &info, nullptr);
    if (outcome == DISP_E_EXCEPTION)
        throw errorFromException(info);
    if (FAILED(outcome))
        throw errorFromHresult(outcome);
}

} // namespace

int DispatchObject::find(std::u16string_view name)
{
    const std::u16string text(name);
    auto* wanted = const_cast<wchar_t*>(wide(text.c_str()));
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(object_->GetIDsOfNames(IID_NULL, &wanted, 1, LOCALE_USER_DEFAULT, &id)))
        engine::raise(engine::error_number::unsupportedMember);
    return id;
}

engine::Value DispatchObject::get(int property)
{
    DISPPARAMS none{};
    Variant result;
    invoke(*object_.Get(), property, DISPATCH_PROPERTYGET, none, result.put());
    return valueFromVariant(result.get());
}

void DispatchObject::put(int property, const engine::Value& value)
{
    Variant given = variantFromValue(value);
    DISPID valueName = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&given.ref(), &valueName, 1, 1};
    invoke(*object_.Get(), property, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

} // namespace vela::activex
