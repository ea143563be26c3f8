// Calling an object through IDispatch.
#include "automation.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <algorithm>

namespace vela::test {

namespace {

struct AsVariant {
    Variant operator()(std::u16string_view value) const { return text(value); }
    Variant operator()(std::int32_t value) const { return number(value); }
    Variant operator()(bool value) const { return truth(value); }
};

} // namespace

Variant given(VARTYPE type, long long bits)
{
    Variant result;
    result.ref().llVal = bits;
    result.ref().vt = type;
    return result;
}

Variant text(std::u16string_view value)
{
    return given(VT_BSTR, reinterpret_cast<std::intptr_t>(Bstr(value).release()));
}

Variant number(std::int32_t value)
{
    return given(VT_I4, value);
}

Variant truth(bool value)
{
    return given(VT_BOOL, value ? VARIANT_TRUE : VARIANT_FALSE);
}

Variant object(IDispatch* value)
{
    return given(VT_DISPATCH, reinterpret_cast<std::intptr_t>(ComPtr<IDispatch>(value).Detach()));
}

ComPtr<IFontDisp> font(const wchar_t* name, int size, bool bold)
{
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<wchar_t*>(name);
    description.cySize.int64 = size * 10000;
    description.sWeight = bold ? FW_BOLD : FW_NORMAL;
    ComPtr<IFontDisp> made;
    EXPECT_EQ(OleCreateFontIndirect(&description, IID_PPV_ARGS(&made)), S_OK);
    return made;
}

std::vector<Variant> one(Variant argument)
{
    std::vector<Variant> arguments;
    arguments.push_back(std::move(argument));
    return arguments;
}

std::u16string errorText()
{
    ComPtr<IErrorInfo> info;
    Bstr description;
    if (GetErrorInfo(0, &info) != S_OK || FAILED(info->GetDescription(description.put())))
        return {};
    return std::u16string(description.text());
}

Automation::Automation(IUnknown* object) : object_(query<IDispatch>(object)) {}

std::optional<DISPID> Automation::id(std::u16string_view name) const
{
    const std::u16string kept(name);
    auto* wanted = const_cast<wchar_t*>(wide(kept.c_str()));
    DISPID found = DISPID_UNKNOWN;
    if (object_->GetIDsOfNames(IID_NULL, &wanted, 1, LOCALE_USER_DEFAULT, &found) != S_OK)
        return std::nullopt;
    return found;
}

Outcome Automation::invoke(DISPID id, WORD flags, std::vector<Variant> arguments) const
{
    std::vector<VARIANT> given;
    std::for_each(arguments.rbegin(), arguments.rend(), [&](Variant& one) { given.push_back(one.get()); });
    DISPID valueName = DISPID_PROPERTYPUT;
    const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{given.data(), put ? &valueName : nullptr, static_cast<UINT>(given.size()), put ? 1u : 0u};
    EXCEPINFO info{};
    Outcome outcome;
    outcome.result =
        object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, outcome.value.put(), &info, nullptr);
    if (outcome.result == DISP_E_EXCEPTION) {
        Bstr source;
        Bstr description;
        *source.put() = info.bstrSource;
        *description.put() = info.bstrDescription;
        outcome.error = info.scode & 0xFFFF;
        outcome.source = source.text();
        outcome.description = description.text();
    }
    return outcome;
}

Outcome Automation::get(std::u16string_view name) const
{
    return invoke(id(name).value_or(DISPID_UNKNOWN), DISPATCH_PROPERTYGET);
}

Outcome Automation::put(std::u16string_view name, Variant value) const
{
    return invoke(id(name).value_or(DISPID_UNKNOWN), DISPATCH_PROPERTYPUT, one(std::move(value)));
}

void Automation::set(std::initializer_list<Setting> settings) const
{
    for (const auto& [name, value] : settings)
        EXPECT_EQ(put(name, std::visit(AsVariant(), value)).result, S_OK) << Bstr(name).get();
}

Outcome Automation::call(std::u16string_view name, std::vector<Variant> arguments) const
{
    return invoke(id(name).value_or(DISPID_UNKNOWN), DISPATCH_METHOD, std::move(arguments));
}

std::u16string Automation::textOf(std::u16string_view name) const
{
    Outcome outcome = get(name);
    if (FAILED(outcome.result) ||
        FAILED(VariantChangeType(&outcome.value.ref(), &outcome.value.ref(), VARIANT_ALPHABOOL, VT_BSTR)))
        return u"?";
    return std::u16string(asText({outcome.value.get().bstrVal, SysStringLen(outcome.value.get().bstrVal)}));
}

HWND Automation::window(std::u16string_view name) const
{
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(get(name).value.get().lVal));
}

} // namespace vela::test
