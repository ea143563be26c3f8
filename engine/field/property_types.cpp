// The tables of the enumerations: names and values as hosts see them.
#include "engine/field/property_types.h"

#include <algorithm>
#include <array>

namespace vela::engine {
namespace {

constexpr std::array<Enumerator, 4> tipoText = {{{u"TextoNormal", 0}, {u"Numerico", 1}, {u"Data", 2}, {u"Mascara", 3}}};
constexpr std::array<Enumerator, 4> letterSize = {
    {{u"Normal", 0}, {u"Maisculo", 1}, {u"Minusculo", 2}, {u"ProperCase", 3}}};
constexpr std::array<Enumerator, 3> simbolos = {{{u"Vazio", 0}, {u"Ponto", 1}, {u"Virgula", 2}}};
constexpr std::array<Enumerator, 4> schemes = {{{u"Primeiro", 1}, {u"Segundo", 2}, {u"Terceiro", 3}, {u"Quarto", 4}}};
constexpr std::array<Enumerator, 6> borders = {
    {{u"Solida", 0}, {u"Tracos", 1}, {u"Pontos", 2}, {u"Tracos_Pontos", 3}, {u"c3DColor", 4}, {u"XP", 5}}};
constexpr std::array<Enumerator, 2> appearances = {{{u"cFlat", 0}, {u"c3D", 1}}};
constexpr std::array<Enumerator, 3> alignments = {{{u"vbLeft", 0}, {u"vbRight", 1}, {u"vbCenter", 2}}};
constexpr std::array<Enumerator, 4> icons = {
    {{u"TTNoIcon", 0}, {u"TTIconInfo", 1}, {u"TTIconWarning", 2}, {u"TTIconError", 3}}};

constexpr std::array<Enumeration, 8> all = {{
    {u"TipoText", tipoText},
    {u"tipoTamanhoLetra", letterSize},
    {u"Simbolos", simbolos},
    {u"eEsquemasRetorno", schemes},
    {u"eEstiloBorda", borders},
    {u"Aparencia", appearances},
    {u"Alinhamento", alignments},
    {u"eIconeToolTipText", icons},
}};

} // namespace

std::span<const Enumeration> enumerations() noexcept
{
    return all;
}

const Enumeration* findEnumeration(std::u16string_view name) noexcept
{
    const auto found = std::ranges::find(all, name, &Enumeration::name);
    return found == all.end() ? nullptr : &*found;
}

} // namespace vela::engine
