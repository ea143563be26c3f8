// Initialisation, starting date and highlight counting of a calendar.
#include "popups/calendar_operations.h"

#include "engine/trapped.h"
#include "popups/calendar_layout.h"
#include "popups/grid_dates.h"

namespace vela::popups {

CalendarOperations::CalendarOperations(platform::Environment& environment, platform::Form& form,
                                       const SharedCalendarColours& colours, const HighlightRule& rule, OwnBoxes& boxes)
    : grid(rule.limit), view(form, grid, colours), environment_(environment), rule_(rule), boxes_(boxes)
{
}

// The model is filled before a widget can fail. After a failure, what the model holds is shown all the same.
void CalendarOperations::load()
{
    auto error = engine::trapped([&] {
        grid.initialise(civilToday(environment_.clock.now()));
        grid.show();
    });
    const auto unseen = engine::trapped([&] { view.refresh(); });
    if (!error)
        error = unseen;
    if (error && error->number != 0)
        boxes_.show(environment_.desktop, platform::BoxIcon::information, u"Vela.Load", error->description);
}

void CalendarOperations::start(const engine::Value& date)
{
    const engine::Date now = environment_.clock.now();
    const auto read = tryReadDate(date, environment_.locales.locale(), now);
    grid.select(read.value_or(civilToday(now)));
    load();
}

void CalendarOperations::clickDay(int cell)
{
    grid.clickDay(cell);
    view.refresh();
}

void CalendarOperations::putMonthIndex(int index)
{
    grid.putMonthIndex(index);
    view.refresh();
}

void CalendarOperations::putYearIndex(int index)
{
    grid.putYearIndex(index);
    view.refresh();
}

int CalendarOperations::takeClick(platform::WidgetId widget)
{
    if (widget == calendar_widget::months)
        view.takeMonth();
    else if (widget == calendar_widget::years)
        view.takeYear();
    return calendar_widget::cellOf(widget);
}

void CalendarOperations::countHighlight()
{
    if (!grid.countHighlight())
        boxes_.show(environment_.desktop, platform::BoxIcon::exclamation, rule_.title, rule_.text);
}

} // namespace vela::popups
