// What the keys do in a calendar that a person works without the mouse.
#pragma once

#include "engine/text/calendar_date.h"

#include <optional>

namespace vela::popups {

// Arrows a day or a week, Page Up and Down a month, with Control a year, Home and End the month's first and last day.
// Nothing for another key. Codes are virtual keys; shift 1, control 2, alt 4.
[[nodiscard]] std::optional<engine::CivilDate> movedByKey(engine::CivilDate from, int code, int shift) noexcept;

} // namespace vela::popups
