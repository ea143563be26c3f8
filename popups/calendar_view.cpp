// Painting the grid onto a form's widgets and reading its combos.
#include "popups/calendar_view.h"

#include "engine/scoped_value.h"
#include "engine/text/decimal_text.h"
#include "popups/calendar_keys.h"
#include "popups/calendar_layout.h"
#include "popups/grid_dates.h"

namespace vela::popups {

namespace {

namespace widget = calendar_widget;

// {2024, 3, 5} -> "5 de março de 2024"
std::u16string spokenDate(engine::CivilDate date)
{
    std::u16string month(monthNames()[static_cast<std::size_t>(date.month - 1)]);
    month[0] = static_cast<char16_t>(month[0] - u'A' + u'a');
    return engine::decimalText(date.day) + u" de " + month + u" de " + engine::decimalText(date.year);
}

engine::RectTwips placeOf(platform::WidgetId id)
{
    return calendarPopupLayout().rows[static_cast<std::size_t>(id.value)].place;
}

void putBack(platform::Form& form, platform::WidgetId id, engine::Colour colour, bool round = false)
{
    platform::WidgetLook look = form.look(id);
    look.back = colour;
    look.opaque = true;
    look.round = round;
    form.putLook(id, look);
}

} // namespace

CalendarView::CalendarView(platform::Form& form, CalendarGrid& grid, const SharedCalendarColours& colours)
    : form_(form), grid_(grid), shared_(colours)
{
    form_.show(widget::frame, false); // until a date has been drawn
}

void CalendarView::applyColours()
{
    form_.putBackColour(colours_.form);
    putBack(form_, widget::panel, colours_.back);
    putBack(form_, widget::months, colours_.combo);
    putBack(form_, widget::years, colours_.combo);
    putBack(form_, widget::upperLine, colours_.dayInactive);
    putBack(form_, widget::lowerLine, colours_.dayInactive);
    putBack(form_, widget::frame, colours_.selected, true);
}

void CalendarView::colourHeader()
{
    for (int column = 0; column < 7; ++column) {
        platform::WidgetLook look = form_.look(widget::weekday(column));
        look.fore = colours_.weekDay;
        look.opaque = false;
        form_.putLook(widget::weekday(column), look);
    }
}

void CalendarView::refresh()
{
    const engine::ScopedFlag refreshing(refreshing_, true);
    colours_ = shared_.read();
    applyColours();
    colourHeader();
    refreshYears();
    refreshChoice(widget::months, grid_.monthIndex());
    refreshChoice(widget::years, grid_.yearIndex());
    for (int cell = 0; cell < cellCount; ++cell)
        refreshCell(cell);
    refreshFrame();
}

void CalendarView::refreshYears()
{
    platform::ItemList& items = form_.items(widget::years);
    const auto& years = grid_.years();
    for (auto at = static_cast<std::size_t>(items.count()); at < years.size(); ++at)
        items.add(engine::decimalText(years[at]));
}

void CalendarView::refreshChoice(platform::WidgetId combo, int chosen)
{
    platform::ItemList& items = form_.items(combo);
    if (items.chosen() != chosen)
        items.choose(chosen);
}

void CalendarView::refreshCell(int cell)
{
    const DayCell& day = grid_.cells()[static_cast<std::size_t>(cell)];
    const auto date = grid_.dateOf(cell);
    platform::WidgetLook look = form_.look(widget::day(cell));
    look.fore = day.role == DayRole::active ? colours_.dayActive : colours_.dayInactive;
    look.opaque = false;
    look.spokenName = date ? spokenDate(*date) : std::u16string();
    if (grid_.frameCell() == cell)
        look.spokenName += u", selecionado";
    form_.putLook(widget::day(cell), look);
    form_.putText(widget::day(cell), caption(day));
}

void CalendarView::refreshFrame()
{
    const int cell = grid_.frameCell();
    if (cell < 0)
        return;
    const engine::RectTwips day = placeOf(widget::day(cell));
    platform::WidgetLook look = form_.look(widget::frame);
    look.left = day.left - frameLeftOf;
    look.top = day.top - frameAbove;
    form_.putLook(widget::frame, look);
    form_.show(widget::frame, true);
}

void CalendarView::takeMonth()
{
    const int chosen = form_.items(widget::months).chosen();
    if (refreshing_ || chosen < 0)
        return;
    grid_.putMonthIndex(chosen);
    refresh();
}

void CalendarView::takeYear()
{
    const int chosen = form_.items(widget::years).chosen();
    if (refreshing_ || chosen < 0)
        return;
    grid_.putYearIndex(chosen);
    refresh();
}

bool CalendarView::moveByKey(int code, int shift)
{
    const auto from = grid_.dateOf(grid_.frameCell());
    if (!from)
        return false;
    const auto to = movedByKey(*from, code, shift);
    if (!to || to->year < firstYear || to->year > lastYear)
        return to.has_value(); // at the ends of the list the key is used up and nothing moves
    grid_.select(*to);
    grid_.show();
    refresh();
    return true;
}

} // namespace vela::popups
