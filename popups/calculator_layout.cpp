// A conventional keypad, four columns by five rows under the display, in twips.
#include "popups/calculator_layout.h"

#include <array>

namespace vela::popups {

namespace {

using platform::WidgetKind;
using platform::WidgetRow;

//  C  CE  %  /
//  7  8   9  X
//  4  5   6  -
//  1  2   3  +
//  0      .  =
constexpr engine::RectTwips key(int column, int row, int columns = 1)
{
    return {(4 + column * 26) * 15, (23 + row * 17) * 15, (columns * 26 - 2) * 15, 16 * 15};
}

constexpr WidgetRow button(std::u16string_view name, int index, std::u16string_view caption, engine::RectTwips place)
{
    return {.kind = WidgetKind::button, .name = name, .index = index, .caption = caption, .place = place};
}

constexpr std::array<WidgetRow, 20> rows{{
    button(u"Operator", 0, u"/", key(3, 0)),
    button(u"Operator", 1, u"+", key(3, 3)),
    button(u"Operator", 2, u"X", key(3, 1)),
    button(u"Operator", 3, u"-", key(3, 2)),
    button(u"Operator", 4, u"=", key(3, 4)),
    button(u"Number", 0, u"0", key(0, 4, 2)),
    button(u"Number", 1, u"1", key(0, 3)),
    button(u"Number", 2, u"2", key(1, 3)),
    button(u"Number", 3, u"3", key(2, 3)),
    button(u"Number", 4, u"4", key(0, 2)),
    button(u"Number", 5, u"5", key(1, 2)),
    button(u"Number", 6, u"6", key(2, 2)),
    button(u"Number", 7, u"7", key(0, 1)),
    button(u"Number", 8, u"8", key(1, 1)),
    button(u"Number", 9, u"9", key(2, 1)),
    button(u"Decimal", -1, u".", key(2, 4)),
    button(u"Percent", -1, u"%", key(2, 0)),
    button(u"CancelEntry", -1, u"C&E", key(1, 0)),
    button(u"Cancel", -1, u"C", key(0, 0)),
    {.kind = WidgetKind::label,
     .name = u"Visor",
     .caption = u"0.",
     .place = {60, 45, 102 * 15, 17 * 15},
     .alignment = platform::TextAlignment::right,
     .bold = true,
     .fits = true},
}};

// In the order of the rows; digits and the display speak for themselves.
constexpr std::array<std::u16string_view, 20> spokenNames = {u"dividido por",
                                                             u"mais",
                                                             u"vezes",
                                                             u"menos",
                                                             u"igual",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"",
                                                             u"ponto decimal",
                                                             u"por cento",
                                                             u"limpar entrada",
                                                             u"limpar tudo",
                                                             u""};

} // namespace

const platform::FormLayout& calculatorLayout() noexcept
{
    static constexpr platform::FormLayout layout{.name = u"frmCalculadora",
                                                 .caption = u"Calculadora",
                                                 .width = calculatorWidth,
                                                 .height = calculatorHeight,
                                                 .rows = rows,
                                                 .fontName = u"Arial"};
    return layout;
}

std::u16string_view spokenName(platform::WidgetId widget) noexcept
{
    return spokenNames[static_cast<std::size_t>(widget.value)];
}

} // namespace vela::popups
