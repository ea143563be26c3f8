// The members of the Vela control as the shell wants them, made from its property table.
#pragma once

#include "activex/ole/content.h"
#include "control/property_table.h"

namespace vela::activex {

// By DISPID, rising; `row` counts in control::properties(), of a method in control::methods().
[[nodiscard]] std::span<const Member> velaMembers();
// The property's own type as a variant: a Byte is VT_UI1, an Integer VT_I2, a colour VT_I4.
[[nodiscard]] Variant propertyVariant(const control::Property& property, const engine::Value& value);
[[nodiscard]] std::span<const std::u16string_view> velaCategories() noexcept;
[[nodiscard]] DISPID eventId(std::u16string_view name) noexcept; // DISPID_UNKNOWN for none

} // namespace vela::activex
