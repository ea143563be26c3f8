// Whole numbers of up to 1,280 bits: enough for every double and any power of ten that makes it a number of 16 digits.
#include "engine/text/exact_decimal.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace vela::engine {

namespace {

constexpr int mantissaBits = 53;
constexpr int limbBits = 32;
constexpr int largestPower = 13; // of five, in a limb

constexpr auto powersOfFive = [] {
    std::array<std::uint32_t, largestPower + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 5;
    return powers;
}();

class BigWhole {
public:
    explicit BigWhole(std::uint64_t value) noexcept
    {
        limbs_[0] = static_cast<std::uint32_t>(value);
        limbs_[1] = static_cast<std::uint32_t>(value >> limbBits);
    }

    void multiplyByPowerOfFive(int exponent) noexcept
    {
        for (; exponent > largestPower; exponent -= largestPower)
            multiply(powersOfFive[largestPower]);
        multiply(powersOfFive[static_cast<std::size_t>(exponent)]);
    }
    void divideByPowerOfFive(int exponent) noexcept // down
    {
        for (; exponent > largestPower; exponent -= largestPower)
            divide(powersOfFive[largestPower]);
        divide(powersOfFive[static_cast<std::size_t>(exponent)]);
    }
    void shiftLeft(int bits) noexcept
    {
        const auto whole = static_cast<std::size_t>(bits / limbBits);
        for (std::size_t i = used_; i-- > 0;)
            limbs_[i + whole] = limbs_[i];
        for (std::size_t i = 0; i < whole; ++i)
            limbs_[i] = 0;
        used_ += whole;
        multiply(std::uint32_t{1} << (bits % limbBits));
    }
    // The 64 bits from this place up.
    [[nodiscard]] std::uint64_t from(int place) const noexcept
    {
        const auto first = static_cast<std::size_t>(place / limbBits);
        const int within = place % limbBits;
        std::uint64_t value = limb(first) >> within;
        value |= std::uint64_t{limb(first + 1)} << (limbBits - within);
        if (within != 0)
            value |= std::uint64_t{limb(first + 2)} << (2 * limbBits - within);
        return value;
    }

private:
    [[nodiscard]] std::uint32_t limb(std::size_t index) const noexcept { return index < used_ ? limbs_[index] : 0; }
    void multiply(std::uint32_t by) noexcept
    {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < used_; ++i) {
            carry += std::uint64_t{limbs_[i]} * by;
            limbs_[i] = static_cast<std::uint32_t>(carry);
            carry >>= limbBits;
        }
        if (carry != 0)
            limbs_[used_++] = static_cast<std::uint32_t>(carry);
    }
    void divide(std::uint32_t by) noexcept
    {
        std::uint64_t rest = 0;
        for (std::size_t i = used_; i-- > 0;) {
            rest = (rest << limbBits) | limbs_[i];
            limbs_[i] = static_cast<std::uint32_t>(rest / by);
            rest %= by;
        }
    }

    std::array<std::uint32_t, 40> limbs_; // the lowest first; only those in use hold anything
    std::size_t used_ = 2;
};

} // namespace

std::uint64_t scaledExactly(double magnitude, int exponent) noexcept
{
    int binary = 0;
    const double fraction = std::frexp(magnitude, &binary);
    BigWhole scaled(static_cast<std::uint64_t>(std::ldexp(fraction, mantissaBits)));
    if (exponent > 0)
        scaled.multiplyByPowerOfFive(exponent);
    // Twice the number, truncated: its last bit then tells whether to round up.
    const int shift = binary - mantissaBits + exponent + 1;
    if (shift > 0)
        scaled.shiftLeft(shift);
    if (exponent < 0)
        scaled.divideByPowerOfFive(-exponent);
    return (scaled.from(shift < 0 ? -shift : 0) + 1) / 2;
}

} // namespace vela::engine
