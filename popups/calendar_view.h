// The calendar on a form: carries the grid's state onto the widgets and the combos' choices back into the grid.
#pragma once

#include "platform/form.h"
#include "popups/calendar_colours.h"
#include "popups/calendar_grid.h"

namespace vela::popups {

class CalendarView {
public:
    // All outlive the view; the grid changes only between two calls of refresh().
    CalendarView(platform::Form& form, CalendarGrid& grid, const SharedCalendarColours& colours);

    void refresh(); // every colour as it is now, years, choices, cells, frame

    // A combo's Click. Nothing while refresh() itself chooses.
    void takeMonth();
    void takeYear();
    // True when the key moved the frame to another day, switching the month where it has to.
    bool moveByKey(int code, int shift);

private:
    void applyColours(); // form, panel, combos, frame
    void colourHeader();
    void refreshYears();
    void refreshChoice(platform::WidgetId combo, int chosen);
    void refreshCell(int cell);
    void refreshFrame();

    platform::Form& form_;
    CalendarGrid& grid_;
    const SharedCalendarColours& shared_;
    CalendarColours colours_; // of the last drawing
    bool refreshing_ = false;
};

} // namespace vela::popups
