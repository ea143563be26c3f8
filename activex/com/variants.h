// Values of automation and values of the library, one into the other.
#pragma once

#include "activex/com/owners.h"
#include "engine/value.h"

#include <span>

namespace vela::activex {

// What a host passed, by value or by reference. Raises 13 for Null, a missing argument, an array or an object without a
// default value, 91 for Nothing; an object stands for its default property. An unsigned 32-bit number too large for a
// signed one becomes a fraction: VT_UI4 4294967295 -> 4294967295.0.
[[nodiscard]] engine::Value valueFromVariant(const VARIANT& variant);
// As above, but an unsigned 32-bit number keeps its bits: VT_UI4 0x80000005 -> -2147483643.
[[nodiscard]] engine::Value colourFromVariant(const VARIANT& variant);

[[nodiscard]] Variant variantFromValue(const engine::Value& value);
// The variant's own type for a value that a host left untyped: bool -> VT_BOOL, text -> VT_BSTR, Empty -> VT_EMPTY.
[[nodiscard]] VARTYPE variantType(const engine::Value& value) noexcept;

// The arguments of one automation call, in the order of the member's parameters.
class Arguments {
public:
    explicit Arguments(const DISPPARAMS& given) noexcept : given_(given) {}

    [[nodiscard]] std::size_t count() const noexcept { return given_.cArgs; }
    [[nodiscard]] bool named() const noexcept; // some argument is named, and is not the value of a put
    // The place among the given ones of a named argument that none of so many parameters takes; -1: there is none.
    [[nodiscard]] int misnamed(int parameters) const noexcept;
    [[nodiscard]] const VARIANT& operator[](std::size_t index) const noexcept;

private:
    const DISPPARAMS& given_;
};

} // namespace vela::activex
