// Small helpers of the control's sources.
#pragma once

#include "engine/error.h"

#include <cstdint>
#include <limits>
#include <string_view>

namespace vela::control {

// A text's length where an Integer is wanted; 6 beyond 32,767.
[[nodiscard]] inline std::int16_t lengthAsInteger(std::u16string_view text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        engine::raise(engine::error_number::overflow);
    return static_cast<std::int16_t>(text.size());
}

// A symbol as text: empty for none.
constexpr std::u16string_view viewOf(const char16_t& symbol) noexcept
{
    return {&symbol, symbol == 0 ? std::size_t{0} : std::size_t{1}};
}

} // namespace vela::control
