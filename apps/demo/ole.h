// Small owners for the demonstration form: strings, variants and dispatch calls by name.
#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

#include <string>
#include <string_view>
#include <utility>

namespace vela::demo {

using Microsoft::WRL::ComPtr;

// A VARIANT that clears itself.
class OleValue {
public:
    OleValue() noexcept { VariantInit(&value_); }
    explicit OleValue(bool on) noexcept : OleValue()
    {
        value_.vt = VT_BOOL;
        value_.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
    }
    explicit OleValue(long number) noexcept : OleValue()
    {
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    explicit OleValue(std::wstring_view text) : OleValue()
    {
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    }
    OleValue(const OleValue& other) : OleValue() { other.copyTo(&value_); }
    OleValue(OleValue&& other) noexcept : OleValue() { std::swap(value_, other.value_); }
    OleValue& operator=(OleValue other) noexcept
    {
        std::swap(value_, other.value_);
        return *this;
    }
    ~OleValue() { VariantClear(&value_); }

    [[nodiscard]] const VARIANT& get() const noexcept { return value_; }
    // The system's copying and converting take what they only read as changeable.
    HRESULT copyTo(VARIANT* into) const noexcept { return VariantCopy(into, const_cast<VARIANT*>(&value_)); }
    HRESULT convertTo(VARIANT* into, VARTYPE type) const noexcept
    {
        return VariantChangeTypeEx(into, const_cast<VARIANT*>(&value_), LOCALE_USER_DEFAULT, 0, type);
    }
    [[nodiscard]] VARIANT* put() noexcept
    {
        VariantClear(&value_);
        return &value_;
    }
    [[nodiscard]] std::wstring text() const; // as the user's locale writes it; "(Empty)" for nothing

private:
    VARIANT value_;
};

// Both answer the call's HRESULT; a failed call leaves `result` empty.
HRESULT getByName(IDispatch* object, const wchar_t* name, OleValue& result);
HRESULT putByName(IDispatch* object, const wchar_t* name, const OleValue& value);

} // namespace vela::demo
