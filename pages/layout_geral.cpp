// The layout of ppGeral.
#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;

constexpr std::u16string_view colourLabel = u"Cor de fundo .............................";

constexpr auto rows = std::to_array<platform::WidgetRow>({
    {K::frame, u"Frame1", -1, u"Delimitadores de Campos", 0, {120, 90, 5360, 1170}},
    {K::label, u"lblDelimitador", -1, u"Primeiro", u'P', {150, 345, 750, 225}, u"Frame1"},
    {K::textBox, u"txtDelimitador", -1, {}, 0, {900, 300, 1350, 300}, u"Frame1"},
    {K::label, u"lblDelimitador02", -1, u"Segundo", u'S', {2430, 345, 750, 225}, u"Frame1"},
    {K::textBox, u"txtDelimitador02", -1, {}, 0, {3180, 300, 1350, 300}, u"Frame1"},
    {K::label, u"lblDelimitador03", -1, u"Terceiro", u'T', {150, 750, 750, 225}, u"Frame1"},
    {K::textBox, u"txtDelimitador03", -1, {}, 0, {900, 705, 1350, 300}, u"Frame1"},
    {K::label, u"lblDelimitador04", -1, u"Quarto", u'Q', {2430, 750, 750, 225}, u"Frame1"},
    {K::textBox, u"txtDelimitador04", -1, {}, 0, {3180, 705, 1350, 300}, u"Frame1"},
    {K::button, u"cmdHelpDelimitador", -1, u"?", 0, {4860, 300, 330, 300}, u"Frame1"},

    {K::checkBox,
     u"chkSimulaUpTAB",
     -1,
     u"Quando Pressionar (Down/Up) enviar um (Tab/Shift Tab)",
     u'D',
     {270, 1410, 5100, 255}},
    {K::checkBox, u"chkSendTab", -1, u"Quando Pressionar ENTER enviar um TAB", u'E', {270, 1755, 5100, 255}},

    {K::frame, u"fraEventos", -1, u"Eventos", 0, {120, 2145, 5360, 750}},
    {K::optionButton, u"optGotfocus", -1, u"Gotfocus", u'G', {150, 315, 1800, 255}, u"fraEventos"},
    {K::optionButton, u"optLost", -1, u"LostFocus", u'L', {2430, 315, 1800, 255}, u"fraEventos"},

    // Two groups share this place; one of them is visible.
    {K::frame, u"fraGotFocus", -1, {}, 0, {120, 3000, 5360, 1170}},
    {K::checkBox, u"chkAutoSelect", -1, u"Auto Seleção do Texto", u'A', {150, 270, 4800, 255}, u"fraGotFocus"},
    {K::label, u"lblCorFundoGot", -1, colourLabel, 0, {150, 720, 2850, 225}, u"fraGotFocus"},
    {K::swatch, u"PicCorFundoGot", -1, {}, 0, {3000, 675, 600, 300}, u"fraGotFocus"},
    {K::frame, u"fraLostFocus", -1, {}, 0, {120, 3000, 5360, 1170}},
    {K::label, u"lblCorFundoLost", -1, colourLabel, 0, {150, 315, 2850, 225}, u"fraLostFocus"},
    {K::swatch, u"PicCorFundoLost", -1, {}, 0, {3000, 270, 600, 300}, u"fraLostFocus"},
    {K::label, u"lblISEmpty", -1, u"Se for vazio assumir", u'v', {150, 720, 2850, 225}, u"fraLostFocus"},
    {K::textBox, u"txtISEmpty", -1, {}, 0, {3000, 675, 2190, 300}, u"fraLostFocus"},
});

constexpr platform::FormLayout table{u"ppGeral", u"Geral", pageWidth, pageHeight, rows};

} // namespace

const platform::FormLayout& geralLayout() noexcept
{
    return table;
}

} // namespace vela::pages
