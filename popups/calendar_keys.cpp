// Keyboard navigation of the calendar.
#include "popups/calendar_keys.h"

#include "engine/text/key_codes.h"
#include "popups/grid_dates.h"

namespace vela::popups {

namespace {

namespace key = engine::key_code;

constexpr int control = 2;

} // namespace

std::optional<engine::CivilDate> movedByKey(engine::CivilDate from, int code, int shift) noexcept
{
    if ((shift & ~control) != 0)
        return std::nullopt;
    const int months = (shift & control) != 0 ? 12 : 1;
    switch (code) {
    case key::pageUp: return addMonths(from, -months);
    case key::pageDown: return addMonths(from, months);
    default: break;
    }
    if (shift != 0)
        return std::nullopt;
    switch (code) {
    case key::left: return addDays(from, -1);
    case key::right: return addDays(from, 1);
    case key::up: return addDays(from, -7);
    case key::down: return addDays(from, 7);
    case key::home: return engine::CivilDate{from.year, from.month, 1};
    case key::end: return engine::CivilDate{from.year, from.month, engine::daysInMonth(from.year, from.month)};
    default: return std::nullopt;
    }
}

} // namespace vela::popups
