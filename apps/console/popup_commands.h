// Scripts' commands at the pop-ups and at one free-standing calendar: calendar, grid, calculator.
#pragma once

#include "apps/console/session.h"
#include "popups/c_calendar.h"

namespace vela::console {

// The free-standing calendar of a run, made by its first use.
class GridDesk {
public:
    explicit GridDesk(Session& session);

    popups::cCalendar calendar;
};

// "grid Março 2024 selected \"15/03/2024\" frame 19" and the six lines of its cells.
void printGrid(Session& session, std::string_view heading, const popups::CalendarGrid& grid);

} // namespace vela::console
