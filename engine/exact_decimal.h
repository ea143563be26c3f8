// Doubles beside decimals without any rounding, for the rare cases that shorter arithmetic leaves open.
#pragma once

#include <cstdint>

namespace vela::engine {

// The sign of magnitude - whole * 10^exponent. Both positive, `magnitude` finite.
[[nodiscard]] int compareExactly(double magnitude, std::uint64_t whole, int exponent) noexcept;

// magnitude * 10^exponent to the nearest whole number, which fits; for a denormalised magnitude and an exponent from
// 300 on. 5e-324, 338 -> 494065645841247
[[nodiscard]] std::uint64_t scaledDenormal(double magnitude, int exponent) noexcept;

} // namespace vela::engine
