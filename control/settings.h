// The stored values of one control: what a property put keeps in the control itself, not in its edit box.
#pragma once

#include "engine/field/property_types.h"
#include "engine/value.h"

#include <array>
#include <cstdint>
#include <string>

namespace vela::control {

using engine::Alinhamento;
using engine::Aparencia;
using engine::eEsquemasRetorno;
using engine::eEstiloBorda;
using engine::eIconeToolTipText;
using engine::Simbolos;
using engine::tipoTamanhoLetra;
using engine::TipoText;

// The initial values are those of a new instance before its setters have run.
struct Settings {
    std::u16string caractLiberados;
    std::u16string dateFormat;
    std::array<std::u16string, 4> delimitador;        // of the return schemes 1 to 4
    std::array<std::u16string, 4> formatoRetornoData; // of the return schemes 1 to 4
    std::u16string errorTextMessage;
    std::u16string formatoExibData;
    std::u16string ifIsEmpty;
    std::u16string mask;
    std::u16string maskRules;
    std::u16string msgRequerido;
    std::u16string nomeCampo;
    std::u16string promptChar = u"_";
    std::u16string simboloMonetario;
    std::u16string toolTipGotFocus;
    std::u16string valorPadrao;

    engine::Colour backColorMouseMove{0x00FEF7E9};
    engine::Colour backColorGotFocus{0x00FFFFFF};
    engine::Colour backColorLostFocus{0x00FFFFFF};
    engine::Colour borderColorMouseMove{0x0000C000};
    engine::Colour borderColorGotfocus{0x00FFFFFF};
    engine::Colour borderColorLostfocus{0x00FFFFFF};
    engine::Colour corValorNeg;
    engine::Colour corValorPos;
    engine::Colour errorForeColor{0x000000FF};
    engine::Colour foreColorGotFocus;
    engine::Colour foreColorLostFocus;

    Aparencia appearance = Aparencia::c3D;
    eEstiloBorda borderStyle = eEstiloBorda::Solida;
    eEsquemasRetorno esquemaRetornoAtual = eEsquemasRetorno::Primeiro;
    Simbolos simbolAgrupMilhar = Simbolos::Vazio;
    Simbolos simbolDecExib = Simbolos::Vazio;
    Simbolos simbolDecRet = Simbolos::Vazio;
    TipoText textType = TipoText::TextoNormal;
    tipoTamanhoLetra tipoLetra = tipoTamanhoLetra::Normal;
    eIconeToolTipText toolTipGotFocusTipo = eIconeToolTipText::TTNoIcon;

    // The symbol texts derived from the three Simbolos; 0 is the empty text.
    char16_t grouping = 0;
    char16_t displayDecimal = 0;
    char16_t returnDecimal = 0;

    std::uint8_t qtdCasasDec = 0;
    bool aceitaNegativos = false;
    bool autoSelect = false;
    bool autoTab = false;
    bool campoRequerido = false;
    bool enterAsTab = false;
    bool errorAlert = false;
    bool errorFocus = false;
    bool errorMsgCustom = false;
    bool errorTextClear = false;
    bool inserirZeros = false;
    bool locked = false;
    bool maskSomenteNumeros = false;
    bool maskToNumeric = false;
    bool multLine = false;
    bool showButtonCalendario = false;
    bool showButtonCalculadora = false;
    bool textoLivre = false;
    bool upTab = true;
};

// Vazio gives the empty text, Ponto ".", every other value ",".
[[nodiscard]] constexpr char16_t symbolOf(Simbolos value) noexcept
{
    switch (value) {
    case Simbolos::Vazio: return 0;
    case Simbolos::Ponto: return u'.';
    case Simbolos::Virgula: break;
    }
    return u',';
}

} // namespace vela::control
