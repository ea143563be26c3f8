// What each member of the control is for, in one sentence of the manual.
#pragma once

#include <string_view>

namespace vela::manual {

// Empty for a member the manual does not know; the generator refuses that.
[[nodiscard]] std::string_view describe(std::u16string_view member) noexcept;

} // namespace vela::manual
