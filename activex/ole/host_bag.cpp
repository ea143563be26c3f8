// Reading and writing the host's property bag.
#include "activex/ole/host_bag.h"

#include "activex/com/guard.h"
#include "activex/com/variants.h"

namespace vela::activex {

engine::Value HostBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    const std::u16string name(key);
    // The type of the variant asks the host to convert the value. A host that cannot is asked again without a type.
    Variant value;
    value.ref().vt = variantType(defaultValue);
    HRESULT result = bag_.Read(wide(name.c_str()), &value.ref(), log_);
    if (result == DISP_E_TYPEMISMATCH || result == DISP_E_BADVARTYPE)
        result = bag_.Read(wide(name.c_str()), value.put(), log_);
    if (result == E_INVALIDARG)
        return defaultValue;
    if (FAILED(result))
        fail(result);
    return value.get().vt == VT_EMPTY ? defaultValue : valueFromVariant(value.get());
}

void HostBag::write(std::u16string_view key, const engine::Value& value,
                    const std::optional<engine::Value>& defaultValue)
{
    if (!all_ && defaultValue && value == *defaultValue)
        return;
    const std::u16string name(key);
    Variant given = variantFromValue(value);
    if (const HRESULT result = bag_.Write(wide(name.c_str()), &given.ref()); FAILED(result))
        fail(result);
}

void HostBag::fail(HRESULT failure)
{
    failure_ = failure;
    throw errorFromHost(failure, bag_, IID_IPropertyBag);
}

} // namespace vela::activex
