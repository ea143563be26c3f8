// Whole numbers of up to 1,280 bits: enough for every finite double and a decimal of twenty digits beside it.
#include "engine/exact_decimal.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace vela::engine {

namespace {

constexpr int mantissaBits = 53;
constexpr int lowestExponent = -1074; // of the last bit of a denormalised number
constexpr int limbBits = 32;

class BigWhole {
public:
    explicit BigWhole(std::uint64_t value) noexcept
    {
        limbs_[0] = static_cast<std::uint32_t>(value);
        limbs_[1] = static_cast<std::uint32_t>(value >> limbBits);
    }
    void multiply(std::uint32_t by) noexcept
    {
        std::uint64_t carry = 0;
        for (std::uint32_t& limb : limbs_) {
            carry += std::uint64_t{limb} * by;
            limb = static_cast<std::uint32_t>(carry);
            carry >>= limbBits;
        }
    }
    void multiplyByPowerOfFive(int exponent) noexcept
    {
        for (; exponent >= 13; exponent -= 13)
            multiply(1220703125); // the largest power in a limb
        for (; exponent > 0; --exponent)
            multiply(5);
    }
    void shiftLeft(int bits) noexcept
    {
        for (; bits >= limbBits - 1; bits -= limbBits - 1)
            multiply(std::uint32_t{1} << (limbBits - 1));
        multiply(std::uint32_t{1} << bits);
    }
    [[nodiscard]] bool bit(int place) const noexcept
    {
        return (limbs_[static_cast<std::size_t>(place / limbBits)] >> (place % limbBits)) & 1;
    }
    // The 64 bits from this place up.
    [[nodiscard]] std::uint64_t from(int place) const noexcept
    {
        std::uint64_t value = 0;
        for (int i = 63; i >= 0; --i)
            value = value * 2 + bit(place + i);
        return value;
    }
    [[nodiscard]] int compare(const BigWhole& other) const noexcept
    {
        for (std::size_t i = limbs_.size(); i-- > 0;)
            if (limbs_[i] != other.limbs_[i])
                return limbs_[i] < other.limbs_[i] ? -1 : 1;
        return 0;
    }

private:
    std::array<std::uint32_t, 40> limbs_{}; // the lowest first
};

} // namespace

int compareExactly(double magnitude, std::uint64_t whole, int exponent) noexcept
{
    int binary = 0;
    const double fraction = std::frexp(magnitude, &binary);
    BigWhole left(static_cast<std::uint64_t>(std::ldexp(fraction, mantissaBits)));
    BigWhole right(whole);
    (exponent < 0 ? left : right).multiplyByPowerOfFive(std::abs(exponent));
    const int shift = binary - mantissaBits - exponent;
    (shift > 0 ? left : right).shiftLeft(std::abs(shift));
    return left.compare(right);
}

std::uint64_t scaledDenormal(double magnitude, int exponent) noexcept
{
    BigWhole scaled(static_cast<std::uint64_t>(std::ldexp(magnitude, -lowestExponent)));
    scaled.multiplyByPowerOfFive(exponent);
    const int places = -lowestExponent - exponent; // binary places left
    return scaled.from(places) + scaled.bit(places - 1);
}

} // namespace vela::engine
