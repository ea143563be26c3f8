// The enumerations and kinds of value of the public properties, with the names hosts see.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace vela::engine {

enum class TipoText : std::int32_t { TextoNormal = 0, Numerico = 1, Data = 2, Mascara = 3 };
enum class tipoTamanhoLetra : std::int32_t { Normal = 0, Maisculo = 1, Minusculo = 2, ProperCase = 3 };
enum class Simbolos : std::int32_t { Vazio = 0, Ponto = 1, Virgula = 2 };
enum class eEsquemasRetorno : std::int32_t { Primeiro = 1, Segundo = 2, Terceiro = 3, Quarto = 4 };
enum class eEstiloBorda : std::int32_t { Solida = 0, Tracos = 1, Pontos = 2, Tracos_Pontos = 3, c3DColor = 4, XP = 5 };
enum class Aparencia : std::int32_t { cFlat = 0, c3D = 1 };
enum class Alinhamento : std::int32_t { vbLeft = 0, vbRight = 1, vbCenter = 2 };
enum class eIconeToolTipText : std::int32_t { TTNoIcon = 0, TTIconInfo = 1, TTIconWarning = 2, TTIconError = 3 };

struct Enumerator {
    std::u16string_view name;
    std::int32_t value = 0;
};

struct Enumeration {
    std::u16string_view name;
    std::span<const Enumerator> members;
};

// The eight enumerations above, in that order.
[[nodiscard]] std::span<const Enumeration> enumerations() noexcept;
[[nodiscard]] const Enumeration* findEnumeration(std::u16string_view name) noexcept;

} // namespace vela::engine
