// A double times a power of ten without any rounding but the last.
#pragma once

#include <cstdint>

namespace vela::engine {

// magnitude * 10^exponent to the nearest whole number, halves up. The magnitude is positive and finite, the result
// below 2^63. 2.5, 0 -> 3; 5e-324, 338 -> 494065645841247
[[nodiscard]] std::uint64_t scaledExactly(double magnitude, int exponent) noexcept;

} // namespace vela::engine
