// The layout of ppCalendario.
#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;

constexpr auto rows = std::to_array<platform::WidgetRow>({
    {K::frame, u"fraCores", -1, u"Cores", 0, {120, 90, 5360, 3300}},
    {K::label, u"lblCorCalendario", 0, u"Cor de Fundo do Calendário", u'F', {150, 345, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 0, {}, 0, {3600, 300, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 1, u"Cor de Fundo das combo", u'c', {150, 765, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 1, {}, 0, {3600, 720, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 2, u"Cor dos dias do mês atual", u'a', {150, 1185, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 2, {}, 0, {3600, 1140, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 3, u"Cor dos dias do mês não atual", u'n', {150, 1605, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 3, {}, 0, {3600, 1560, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 4, u"Cor dos dias da semana", u's', {150, 2025, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 4, {}, 0, {3600, 1980, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 5, u"Cor das Bordas", u'B', {150, 2445, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 5, {}, 0, {3600, 2400, 900, 300}, u"fraCores"},
    {K::label, u"lblCorCalendario", 6, u"Cor do dia selecionado", u'd', {150, 2865, 3450, 225}, u"fraCores"},
    {K::swatch, u"PicCorCalendario", 6, {}, 0, {3600, 2820, 900, 300}, u"fraCores"},
});

constexpr platform::FormLayout table{u"ppCalendario", u"Calendário", pageWidth, pageHeight, rows};

} // namespace

const platform::FormLayout& calendarioLayout() noexcept
{
    return table;
}

} // namespace vela::pages
