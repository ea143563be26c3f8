// What the pop-up calendar and the free-standing one do alike: initialising, showing, counting highlights.
#pragma once

#include "platform/environment.h"
#include "popups/calendar_colours.h"
#include "popups/calendar_view.h"
#include "popups/own_box.h"

#include <string_view>

namespace vela::popups {

struct HighlightRule {
    int limit = 0;
    std::u16string_view title;
    std::u16string_view text;
};

class CalendarOperations {
public:
    // All outlive the object.
    CalendarOperations(platform::Environment& environment, platform::Form& form, const SharedCalendarColours& colours,
                       const HighlightRule& rule, OwnBoxes& boxes);

    // Initialisation and show step; a failure is shown in a box titled "Vela.Load", and what was filled stays.
    void load();
    // A value that is no date selects today.
    void start(const engine::Value& date);
    void clickDay(int cell);       // 9 outside 0..41
    void putMonthIndex(int index); // 380 outside the list
    void putYearIndex(int index);
    // Takes the choice of a combo; the cell of a day, -1 for any other widget.
    [[nodiscard]] int takeClick(platform::WidgetId widget);
    // At the limit a box in place of counting.
    void countHighlight();

    CalendarGrid grid;
    CalendarView view;

private:
    platform::Environment& environment_;
    const HighlightRule& rule_;
    OwnBoxes& boxes_;
};

} // namespace vela::popups
