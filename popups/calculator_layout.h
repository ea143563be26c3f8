// The calculator's table of widgets and where each row stands in it.
#pragma once

#include "platform/form.h"

namespace vela::popups {

// 110 x 109 pixels at 96 dpi.
inline constexpr int calculatorWidth = 1650;
inline constexpr int calculatorHeight = 1635;

[[nodiscard]] const platform::FormLayout& calculatorLayout() noexcept; // "frmCalculadora"

// The rows' places: Operator(0..4), Number(0..9), Decimal, Percent, CancelEntry, Cancel, Visor.
namespace calculator_widget {
[[nodiscard]] constexpr platform::WidgetId operation(int index) noexcept
{
    return {index};
}
[[nodiscard]] constexpr platform::WidgetId number(int digit) noexcept
{
    return {5 + digit};
}
inline constexpr platform::WidgetId equals{4};
inline constexpr platform::WidgetId zero{5};
inline constexpr platform::WidgetId decimal{15};
inline constexpr platform::WidgetId percent{16};
inline constexpr platform::WidgetId cancelEntry{17};
inline constexpr platform::WidgetId cancel{18};
inline constexpr platform::WidgetId display{19};
[[nodiscard]] constexpr bool isOperator(platform::WidgetId widget) noexcept
{
    return widget.value >= 0 && widget.value < 5;
}
[[nodiscard]] constexpr bool isNumber(platform::WidgetId widget) noexcept
{
    return widget.value >= 5 && widget.value < 15;
}
} // namespace calculator_widget

// What a screen reader says of a button: "mais" for "+"; empty where the caption serves.
[[nodiscard]] std::u16string_view spokenName(platform::WidgetId widget) noexcept;

} // namespace vela::popups
