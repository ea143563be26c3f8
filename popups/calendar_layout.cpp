// The calendar's widgets in twips; 15 twips are one pixel at 96 dpi.
#include "popups/calendar_layout.h"

#include "popups/calendar_grid.h"

#include <array>

namespace vela::popups {

namespace {

using platform::WidgetKind;
using platform::WidgetRow;

constexpr engine::RectTwips pixels(int left, int top, int width, int height)
{
    return {left * 15, top * 15, width * 15, height * 15};
}

// Columns stand 24 pixels apart, rows 18. A day is 18 x 16 pixels, so that the frame around it, 6 pixels wider and 2
// higher on each side, stays clear of its neighbours' numbers and within the panel.
constexpr int columnPitch = 24;
constexpr int rowPitch = 18;
constexpr int firstColumn = 11;
constexpr int firstRow = 52;
constexpr int dayWidth = 18;
constexpr int dayHeight = 16;
constexpr int headerWidth = columnPitch - 2; // two weekdays never touch

constexpr std::size_t fixedRows = 6;
constexpr std::size_t rowCount = fixedRows + 7 + cellCount;

std::array<WidgetRow, rowCount> makeRows()
{
    std::array<WidgetRow, rowCount> rows{{
        {.kind = WidgetKind::dropDownList, .name = u"CboMes", .place = pixels(5, 4, 106, 22), .items = monthNames()},
        {.kind = WidgetKind::dropDownList, .name = u"CboAno", .place = pixels(115, 4, 64, 22)},
        {.kind = WidgetKind::label, .name = u"Picture1", .place = pixels(2, 30, 180, 133)},
        {.kind = WidgetKind::label, .name = u"Line1", .place = pixels(6, 48, 172, 1)},
        {.kind = WidgetKind::label, .name = u"Line2", .place = pixels(2, 29, 180, 1)},
        {.kind = WidgetKind::label,
         .name = u"lblBorda",
         .place = {firstColumn * 15 - frameLeftOf, firstRow * 15 - frameAbove, dayWidth * 15 + 2 * frameLeftOf,
                   dayHeight * 15 + 2 * frameAbove}},
    }};
    std::size_t at = fixedRows;
    for (int column = 0; column < 7; ++column)
        rows[at++] = {
            .kind = WidgetKind::label,
            .name = u"LblDiaSemana",
            .index = column,
            .caption = weekdayNames()[static_cast<std::size_t>(column)],
            .place = pixels(firstColumn - (headerWidth - dayWidth) / 2 + column * columnPitch, 32, headerWidth, 15),
            .alignment = platform::TextAlignment::center,
            .fits = true};
    for (int cell = 0; cell < cellCount; ++cell)
        rows[at++] = {
            .kind = WidgetKind::label,
            .name = u"LblDia",
            .index = cell,
            .place = pixels(firstColumn + cell % 7 * columnPitch, firstRow + cell / 7 * rowPitch, dayWidth, dayHeight),
            .alignment = platform::TextAlignment::center,
            .fits = true};
    return rows;
}

const std::array<WidgetRow, rowCount>& rows() noexcept
{
    static const std::array<WidgetRow, rowCount> table = makeRows();
    return table;
}

} // namespace

const platform::FormLayout& calendarPopupLayout() noexcept
{
    static const platform::FormLayout layout{.name = u"CalendarioSDI",
                                             .caption = u"Calendário",
                                             .width = calendarWidth,
                                             .height = calendarHeight,
                                             .rows = rows()};
    return layout;
}

const platform::FormLayout& calendarControlLayout() noexcept
{
    static const platform::FormLayout layout{.name = u"cCalendar",
                                             .caption = u"Calendário",
                                             .width = calendarWidth,
                                             .height = calendarHeight,
                                             .rows = rows()};
    return layout;
}

} // namespace vela::popups
