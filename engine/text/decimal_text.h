// Whole numbers as decimal digits, the same in every locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vela::engine {

// -7 -> "-7"; 7 with at least two digits -> "07".
[[nodiscard]] std::u16string decimalText(std::int64_t number, std::size_t leastDigits = 1);

} // namespace vela::engine
