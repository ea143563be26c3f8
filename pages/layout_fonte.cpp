// The layout of ppFonte.
#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;

constexpr auto rows = std::to_array<platform::WidgetRow>({
    {K::frame, u"fraFonte", -1, u"Fonte", 0, {120, 90, 5360, 1170}},
    {K::label, u"lblFontName", -1, u"Nome", u'N', {150, 345, 960, 225}, u"fraFonte"},
    {K::comboBox, u"CboFontName", -1, {}, 0, {1110, 300, 4080, 315}, u"fraFonte"},
    {K::label, u"lblSize", -1, u"Tamanho", u'T', {150, 750, 960, 225}, u"fraFonte"},
    {K::textBox, u"txtSize", -1, {}, 0, {1110, 705, 600, 300}, u"fraFonte"},

    {K::frame, u"fraEstilo", -1, u"Estilo", 0, {120, 1350, 5360, 1110}},
    {K::checkBox, u"Negrito", -1, u"Negrito", u'g', {150, 315, 2190, 255}, u"fraEstilo"},
    {K::checkBox, u"Italico", -1, u"Itálico", u'I', {2700, 315, 2190, 255}, u"fraEstilo"},
    {K::checkBox, u"Sublinhado", -1, u"Sublinhado", u'S', {150, 690, 2190, 255}, u"fraEstilo"},
    {K::checkBox, u"Cortado", -1, u"Cortado", u'C', {2700, 690, 2190, 255}, u"fraEstilo"},

    {K::frame, u"fraExemplo", -1, u"Exemplo", 0, {120, 2550, 5360, 2670}},
    {K::button, u"cmdTeste", -1, u"Teste", u'e', {150, 300, 1350, 345}, u"fraExemplo"},
    {K::preview, u"picTeste", -1, {}, 0, {150, 750, 5040, 1770}, u"fraExemplo"},
});

constexpr platform::FormLayout table{u"ppFonte", u"Fonte", pageWidth, pageHeight, rows};

} // namespace

const platform::FormLayout& fonteLayout() noexcept
{
    return table;
}

} // namespace vela::pages
