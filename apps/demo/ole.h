// Small helpers of an OLE host: variants, sinks, and dispatch calls by name.
#pragma once

#include "platform/win32/com_object.h"

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

namespace vela::demo {

using win32::ComPtr;
using win32::CountedObject;
using win32::make;
using win32::query;

// Called by number only: without names and type information.
template <class... Interfaces>
class NumberedObject : public CountedObject<Interfaces...> {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        if (!count)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
};

// A sink at one of an object's connection points, while this lives.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(); }

    bool open(IUnknown* source, REFIID events, IUnknown* sink)
    {
        const auto container = query<IConnectionPointContainer>(source);
        return container && SUCCEEDED(container->FindConnectionPoint(events, &point_)) &&
               SUCCEEDED(point_->Advise(sink, &cookie_));
    }
    HRESULT close()
    {
        const auto point = std::exchange(point_, {});
        return point ? point->Unadvise(cookie_) : S_FALSE;
    }
    void forget() { point_.Reset(); } // as hosts do that release a source without a word

private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

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
