// The layout of ppErros.
#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;

constexpr auto rows = std::to_array<platform::WidgetRow>({
    {K::frame, u"Frame1", -1, u"Mensagem de Erro", 0, {120, 90, 5360, 1890}},
    {K::checkBox,
     u"chkExibirAlertaPadrao",
     -1,
     u"Exibir Mensagens ao ocorrer erro de digitação",
     u'E',
     {150, 330, 4590, 255},
     u"Frame1"},
    {K::button, u"CmdHelpErroAlert", -1, u"?", 0, {4860, 300, 330, 300}, u"Frame1"},
    {K::checkBox,
     u"chkPersonalizarMsgErro",
     -1,
     u"Personalizar Mensagem de erro",
     u'P',
     {150, 720, 4590, 255},
     u"Frame1"},
    {K::label, u"LBLTextCustom", -1, u"Texto Personalizado", u'T', {150, 1110, 4590, 225}, u"Frame1"},
    {K::textBox, u"txtMsgCustom", -1, {}, 0, {150, 1380, 5040, 300}, u"Frame1"},

    {K::checkBox, u"chkLimpaCampo", -1, u"Limpar Campo em Caso de Erro", u'L', {270, 2160, 5100, 255}},
    {K::checkBox,
     u"chkErrorFocus",
     -1,
     u"Não sair do campo enquanto não for digitado corretamente",
     u'N',
     {270, 2520, 5100, 255}},

    {K::label, u"Label3", -1, u"Cor da letra de ocorrer erro de digitação", u'C', {270, 2985, 3810, 225}},
    {K::swatch, u"PicCor", -1, {}, 0, {4080, 2940, 600, 300}},
});

constexpr platform::FormLayout table{u"ppErros", u"Erros", pageWidth, pageHeight, rows};

} // namespace

const platform::FormLayout& errosLayout() noexcept
{
    return table;
}

} // namespace vela::pages
