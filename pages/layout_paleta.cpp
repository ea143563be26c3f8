// The layout of frmPaleta: the fixed palette on the left, the person's own colour on the right.
#include "pages/layouts.h"
#include "pages/palette_colours.h"

#include <algorithm>
#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;
using platform::WidgetRow;

constexpr std::u16string_view palette = u"Frame1";
constexpr std::u16string_view custom = u"Frame2";

constexpr auto head = std::to_array<WidgetRow>({
    {K::label, u"Label4", -1, u"Escolha a cor desejada", 0, {120, 105, 4560, 225}},
    {K::frame, palette, -1, u"Paleta Padrão", 0, {120, 360, 2370, 1440}},
});

constexpr auto tail = std::to_array<WidgetRow>({
    {K::frame, custom, -1, u"Personalizada", 0, {2580, 360, 2370, 1440}},
    {K::label, u"lblR", -1, u"Vermelho", u'V', {120, 315, 810, 225}, custom},
    {K::textBox, u"txtR", -1, {}, 0, {930, 270, 540, 300}, custom},
    {K::label, u"lblG", -1, u"Verde", u'e', {120, 690, 810, 225}, custom},
    {K::textBox, u"txtG", -1, {}, 0, {930, 645, 540, 300}, custom},
    {K::label, u"lblB", -1, u"Azul", u'A', {120, 1065, 810, 225}, custom},
    {K::textBox, u"txtB", -1, {}, 0, {930, 1020, 540, 300}, custom},
    {K::label, u"picCustom", -1, {}, 0, {1590, 270, 660, 1050}, custom},
    {K::button, u"cmdOK", -1, u"OK", 0, {2520, 1950, 1170, 360}},
    {K::button, u"cmdCancel", -1, u"Cancelar", 0, {3780, 1950, 1170, 360}},
});

constexpr WidgetRow swatchRow(const PaletteColour& entry)
{
    return {K::swatch, u"Picture1", entry.index, {}, 0, {entry.left, entry.top, paletteSwatchSize, paletteSwatchSize},
            palette};
}

// In tab order: the swatches, column by column, stand between the two groups.
constexpr auto makeRows()
{
    std::array<WidgetRow, head.size() + paletteColours.size() + tail.size()> rows;
    const auto swatches = std::ranges::copy(head, rows.begin()).out;
    const auto rest = std::ranges::transform(paletteColours, swatches, swatchRow).out;
    std::ranges::copy(tail, rest);
    return rows;
}

constexpr auto rows = makeRows();
constexpr platform::FormLayout table{u"frmPaleta", u"Paleta de Cores", 5070, 2430, rows};

} // namespace

const platform::FormLayout& paletaLayout() noexcept
{
    return table;
}

} // namespace vela::pages
