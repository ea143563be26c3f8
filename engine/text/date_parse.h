// Texts to dates. `today` supplies the year of a date text without one.
#pragma once

#include "engine/text/locale.h"
#include "engine/value.h"

#include <optional>
#include <string_view>

namespace vela::engine {

[[nodiscard]] bool isDate(std::u16string_view text, const Locale& locale, Date today) noexcept;
[[nodiscard]] std::optional<Date> tryParseDate(std::u16string_view text, const Locale& locale, Date today) noexcept;
// Raises 13 (type mismatch) for what is no date, and 6 (overflow) for one outside the years 100 to 9999.
[[nodiscard]] Date toDate(std::u16string_view text, const Locale& locale, Date today);

} // namespace vela::engine
