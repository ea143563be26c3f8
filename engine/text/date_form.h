// Reads texts in the forms that a locale itself writes dates and times in.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/locale.h"

#include <optional>
#include <string_view>

namespace vela::engine {

// The short date, the long time, or both with a blank between, exactly as the locale's pictures write them:
// "31.12.2024", "2024. 12. 31. 14:05:33". Years of two digits are as they stand; a time alone is one of 30 December
// 1899.
[[nodiscard]] std::optional<Moment> readOwnForm(std::u16string_view text, const Locale& locale) noexcept;

} // namespace vela::engine
