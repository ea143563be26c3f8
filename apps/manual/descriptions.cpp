// What the enumerators mean.
#include "apps/manual/descriptions.h"

#include <algorithm>
#include <iterator>

namespace vela::manual {

namespace {

constexpr EnumeratorText enumerators[] = {
    {u"TextoNormal", "free text", "texto"},
    {u"Numerico", "a number", "um número"},
    {u"Data", "a date or a time", "uma data ou uma hora"},
    {u"Mascara", "masked text", "texto com máscara"},
    {u"Normal", "as typed", "como digitado"},
    {u"Maisculo", "capitals", "maiúsculas"},
    {u"Minusculo", "small letters", "minúsculas"},
    {u"ProperCase", "proper names, when the field is left", "nomes próprios, ao sair do campo"},
    {u"Vazio", "none", "nenhum"},
    {u"Ponto", "a point", "ponto"},
    {u"Virgula", "a comma", "vírgula"},
    {u"Primeiro", "the first scheme", "o primeiro esquema"},
    {u"Segundo", "the second", "o segundo"},
    {u"Terceiro", "the third", "o terceiro"},
    {u"Quarto", "the fourth", "o quarto"},
    {u"Solida", "a solid line", "linha contínua"},
    {u"Tracos", "dashes", "traços"},
    {u"Pontos", "dots", "pontos"},
    {u"Tracos_Pontos", "dash and dot", "traço e ponto"},
    {u"c3DColor", "3D in the border's colour", "relevo na cor da borda"},
    {u"XP", "rounded corners, no button", "cantos arredondados, sem botão"},
    {u"cFlat", "the control draws the border", "o controle desenha a borda"},
    {u"c3D", "the box has a sunken border", "a caixa tem borda rebaixada"},
    {u"vbLeft", "left", "à esquerda"},
    {u"vbRight", "right", "à direita"},
    {u"vbCenter", "centred", "no centro"},
    {u"TTNoIcon", "no icon", "sem ícone"},
    {u"TTIconInfo", "information", "informação"},
    {u"TTIconWarning", "a warning", "aviso"},
    {u"TTIconError", "an error", "erro"},
};

} // namespace

const EnumeratorText* findEnumeratorText(std::u16string_view name) noexcept
{
    const auto* const found = std::ranges::find(enumerators, name, &EnumeratorText::name);
    return found == std::end(enumerators) ? nullptr : found;
}

} // namespace vela::manual
