// The calendar's table of widgets, shared by the pop-up and the free-standing control, and where each row stands in it.
#pragma once

#include "platform/form.h"

namespace vela::popups {

// 184 x 167 pixels at 96 dpi. The frame stands 30 twips above and 90 twips left of the cell it marks.
inline constexpr int calendarWidth = 2760;
inline constexpr int calendarHeight = 2505;
inline constexpr int frameAbove = 30;
inline constexpr int frameLeftOf = 90;

[[nodiscard]] const platform::FormLayout& calendarPopupLayout() noexcept;   // "CalendarioSDI"
[[nodiscard]] const platform::FormLayout& calendarControlLayout() noexcept; // "cCalendar"

// The rows' places: CboMes, CboAno, Picture1, Line1, Line2, lblBorda, LblDiaSemana(0..6), LblDia(0..41).
namespace calendar_widget {
inline constexpr platform::WidgetId months{0};
inline constexpr platform::WidgetId years{1};
inline constexpr platform::WidgetId panel{2};
inline constexpr platform::WidgetId upperLine{3};
inline constexpr platform::WidgetId lowerLine{4};
inline constexpr platform::WidgetId frame{5};
[[nodiscard]] constexpr platform::WidgetId weekday(int column) noexcept
{
    return {6 + column};
}
[[nodiscard]] constexpr platform::WidgetId day(int cell) noexcept
{
    return {13 + cell};
}
[[nodiscard]] constexpr int cellOf(platform::WidgetId widget) noexcept // -1: no day
{
    return widget.value >= 13 && widget.value < 55 ? widget.value - 13 : -1;
}
} // namespace calendar_widget

} // namespace vela::popups
