// Conversions between VARIANT and engine::Value by the rules of the system's automation library.
#include "activex/com/variants.h"

#include "activex/com/guard.h"

#include <limits>

namespace vela::activex {

namespace {

constexpr int deepestDefault = 8; // objects whose default property is an object, one in another

[[noreturn]] void typeMismatch()
{
    engine::raise(engine::error_number::typeMismatch);
}

template <class Whole>
engine::Value wholeValue(Whole number)
{
    if (number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<std::int32_t>::max())
        return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

// Through seven decimal digits, as the system writes it: 0.1f -> 0.1, not 0.10000000149011612.
double singleValue(float number)
{
    DECIMAL decimal;
    double value = number;
    if (SUCCEEDED(VarDecFromR4(number, &decimal)) && SUCCEEDED(VarR8FromDec(&decimal, &value)))
        return value;
    return number;
}

engine::Value convert(const VARIANT& variant, int depth);

engine::Value defaultOf(IDispatch* object, int depth)
{
    if (!object)
        engine::raise(engine::error_number::objectNotSet);
    if (depth == deepestDefault)
        typeMismatch();
    DISPPARAMS none{};
    Variant result;
    EXCEPINFO info{};
    const HRESULT outcome = object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT,
                                           DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, result.put(), &info, nullptr);
    if (outcome == DISP_E_EXCEPTION)
        throw errorFromException(info);
    if (FAILED(outcome))
        typeMismatch();
    return convert(result.get(), depth + 1);
}

engine::Value decimalValue(const VARIANT& variant)
{
    double number = 0;
    check(variant.vt == VT_CY ? VarR8FromCy(variant.cyVal, &number)
                              : VarR8FromDec(const_cast<DECIMAL*>(&variant.decVal), &number));
    return number;
}

engine::Value convert(const VARIANT& variant, int depth)
{
    switch (variant.vt) {
    case VT_EMPTY: return engine::Empty{};
    case VT_BOOL: return variant.boolVal != VARIANT_FALSE;
    case VT_I1: return std::int32_t{static_cast<signed char>(variant.cVal)};
    case VT_UI1: return std::int32_t{variant.bVal};
    case VT_I2: return std::int32_t{variant.iVal};
    case VT_UI2: return std::int32_t{variant.uiVal};
    case VT_I4: return std::int32_t{variant.lVal};
    case VT_INT: return std::int32_t{variant.intVal};
    case VT_UI4: return wholeValue(static_cast<std::int64_t>(variant.ulVal));
    case VT_UINT: return wholeValue(static_cast<std::int64_t>(variant.uintVal));
    case VT_I8: return wholeValue(static_cast<std::int64_t>(variant.llVal));
    case VT_UI8:
        return variant.ullVal <= 0x7FFFFFFFu ? engine::Value(static_cast<std::int32_t>(variant.ullVal))
                                             : engine::Value(static_cast<double>(variant.ullVal));
    case VT_R4: return singleValue(variant.fltVal);
    case VT_R8: return variant.dblVal;
    case VT_CY:
    case VT_DECIMAL: return decimalValue(variant);
    case VT_DATE: return engine::Date{variant.date};
    case VT_BSTR: return std::u16string(asText({variant.bstrVal, SysStringLen(variant.bstrVal)}));
    case VT_DISPATCH: return defaultOf(variant.pdispVal, depth);
    case VT_UNKNOWN: return defaultOf(query<IDispatch>(variant.punkVal).Get(), depth);
    default: break;
    }
    if ((variant.vt & VT_BYREF) == 0 || (variant.vt & VT_ARRAY) != 0)
        typeMismatch();
    Variant copy;
    check(VariantCopyInd(copy.put(), const_cast<VARIANT*>(&variant)));
    return convert(copy.get(), depth);
}

void assign(VARIANT& into, engine::Empty)
{
    into.vt = VT_EMPTY;
}
void assign(VARIANT& into, bool value)
{
    into.vt = VT_BOOL;
    into.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}
void assign(VARIANT& into, std::int32_t value)
{
    into.vt = VT_I4;
    into.lVal = value;
}
void assign(VARIANT& into, double value)
{
    into.vt = VT_R8;
    into.dblVal = value;
}
void assign(VARIANT& into, const std::u16string& value)
{
    into.bstrVal = Bstr(value).release();
    into.vt = VT_BSTR;
}
void assign(VARIANT& into, engine::Date value)
{
    into.vt = VT_DATE;
    into.date = value.serial;
}

} // namespace

engine::Value valueFromVariant(const VARIANT& variant)
{
    return convert(variant, 0);
}

engine::Value colourFromVariant(const VARIANT& variant)
{
    switch (variant.vt) {
    case VT_UI4: return static_cast<std::int32_t>(variant.ulVal);
    case VT_UINT: return static_cast<std::int32_t>(variant.uintVal);
    case VT_UI4 | VT_BYREF: return static_cast<std::int32_t>(*variant.pulVal);
    case VT_UINT | VT_BYREF: return static_cast<std::int32_t>(*variant.puintVal);
    case VT_VARIANT | VT_BYREF: return colourFromVariant(*variant.pvarVal);
    default: return convert(variant, 0);
    }
}

Variant variantFromValue(const engine::Value& value)
{
    Variant result;
    std::visit([&](const auto& held) { assign(result.ref(), held); }, value);
    return result;
}

VARTYPE variantType(const engine::Value& value) noexcept
{
    static constexpr VARTYPE types[] = {VT_EMPTY, VT_BOOL, VT_I4, VT_R8, VT_BSTR, VT_DATE};
    static_assert(std::size(types) == std::variant_size_v<engine::Value>);
    return types[value.index()];
}

// Named ones come first, in the order of their names, which are numbers of parameters; the others follow backwards.
const VARIANT& Arguments::operator[](std::size_t index) const noexcept
{
    for (UINT i = 0; i < given_.cNamedArgs; ++i)
        if (given_.rgdispidNamedArgs[i] == static_cast<DISPID>(index))
            return given_.rgvarg[i];
    return given_.rgvarg[given_.cArgs - 1 - index];
}

int Arguments::misnamed(int parameters) const noexcept
{
    const auto positions = static_cast<DISPID>(given_.cArgs - std::min(given_.cArgs, given_.cNamedArgs));
    for (UINT i = 0; i < given_.cNamedArgs; ++i) {
        const DISPID name = given_.rgdispidNamedArgs[i];
        if (name < positions || name >= parameters)
            return static_cast<int>(i);
    }
    return -1;
}

bool Arguments::named() const noexcept
{
    return given_.cNamedArgs > 1 || (given_.cNamedArgs == 1 && given_.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT);
}

} // namespace vela::activex
