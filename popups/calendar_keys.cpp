// Keyboard navigation of the calendar.
#include "popups/calendar_keys.h"

#include "popups/grid_dates.h"

namespace vela::popups {

namespace {

constexpr int control = 2;
constexpr int pageUp = 33;
constexpr int pageDown = 34;
constexpr int end = 35;
constexpr int home = 36;
constexpr int left = 37;
constexpr int up = 38;
constexpr int right = 39;
constexpr int down = 40;

} // namespace

std::optional<engine::CivilDate> movedByKey(engine::CivilDate from, int code, int shift) noexcept
{
    if ((shift & ~control) != 0)
        return std::nullopt;
    const int months = (shift & control) != 0 ? 12 : 1;
    switch (code) {
    case pageUp: return addMonths(from, -months);
    case pageDown: return addMonths(from, months);
    default: break;
    }
    if (shift != 0)
        return std::nullopt;
    switch (code) {
    case left: return addDays(from, -1);
    case right: return addDays(from, 1);
    case up: return addDays(from, -7);
    case down: return addDays(from, 7);
    case home: return engine::CivilDate{from.year, from.month, 1};
    case end: return engine::CivilDate{from.year, from.month, engine::daysInMonth(from.year, from.month)};
    default: return std::nullopt;
    }
}

} // namespace vela::popups
