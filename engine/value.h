// A value as hosts pass it: nothing, a truth value, a whole number, a fraction, a text or a date.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <variant>

namespace vela::engine {

struct Empty {
    friend bool operator==(Empty, Empty) = default;
};

// Days since 30 December 1899; the fraction is the time of day (for negative days counted away from the day,
// as the automation type does: -1.25 is 29 December 1899 06:00).
struct Date {
    double serial = 0;
    friend auto operator<=>(Date, Date) = default;
};

using Value = std::variant<Empty, bool, std::int32_t, double, std::u16string, Date>;

// A colour as hosts hold it: &H00BBGGRR, or &H80000000 plus a system-colour index.
struct Colour {
    std::uint32_t value = 0;
    friend bool operator==(Colour, Colour) = default;
};

// Currency with four decimals, held as ten-thousandths. 12.5 is {125000}.
struct Currency {
    std::int64_t tenThousandths = 0;
    friend auto operator<=>(Currency, Currency) = default;
};

} // namespace vela::engine
