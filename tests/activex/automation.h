// Late-bound access to an object, as scripts have it.
#pragma once

#include "com_object.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vela::test {

[[nodiscard]] Variant given(VARTYPE type, long long bits = 0); // the value's own bits
[[nodiscard]] Variant text(std::u16string_view value);
[[nodiscard]] Variant number(std::int32_t value);
[[nodiscard]] Variant truth(bool value);
[[nodiscard]] Variant object(IDispatch* value);
[[nodiscard]] ComPtr<IFontDisp> font(const wchar_t* name, int size, bool bold);

// One argument of a call.
[[nodiscard]] std::vector<Variant> one(Variant argument);

// What the last failure of this thread said; empty when it said nothing.
[[nodiscard]] std::u16string errorText();

using Setting = std::pair<std::u16string_view, std::variant<std::u16string_view, std::int32_t, bool>>;

struct Outcome {
    HRESULT result = S_OK;
    int error = 0; // of the exception information: 1001; 0 without one
    std::u16string source;
    std::u16string description;
    Variant value;
};

class Automation {
public:
    explicit Automation(IUnknown* object);

    [[nodiscard]] std::optional<DISPID> id(std::u16string_view name) const;
    Outcome invoke(DISPID id, WORD flags, std::vector<Variant> arguments = {}) const;
    Outcome get(std::u16string_view name) const;
    Outcome put(std::u16string_view name, Variant value) const;
    void set(std::initializer_list<Setting> settings) const; // each of them must be taken
    Outcome call(std::u16string_view name, std::vector<Variant> arguments = {}) const;

    [[nodiscard]] std::u16string textOf(std::u16string_view name) const; // converted to text, "?" when it fails
    [[nodiscard]] HWND window(std::u16string_view name) const;           // a property that is a window's handle
    [[nodiscard]] IDispatch* dispatch() const noexcept { return object_.Get(); }

private:
    ComPtr<IDispatch> object_;
};

} // namespace vela::test
