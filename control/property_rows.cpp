// The rows of the property table, in the order of the interface. DISPIDs never change; rows are appended.
#include "control/property_rows.h"

#include "control/conversion.h"
#include "control/vela.h"
#include "engine/error.h"
#include "engine/property_types.h"

#include <array>

namespace vela::control {

namespace {

using engine::Colour;
using enum Browsable;
using Name = std::u16string_view;

template <class T, T (Vela::*Get)() const>
engine::Value get(Vela& control)
{
    return toValue((control.*Get)());
}

template <class T, T (Vela::*Get)() const, void (Vela::*Put)(T)>
Property plain(Name name, int dispid, Browsable browsable, Name help = {})
{
    return {.name = name,
            .dispid = dispid,
            .type = propertyTypeOf<T>(),
            .browsable = browsable,
            .help = help,
            .get = &get<T, Get>,
            .put = [](Vela& control, const engine::Value& value) { (control.*Put)(ownValue<T>(value)); }};
}

template <class T, T (Vela::*Get)() const, void (Vela::*Put)(T)>
Property enumerated(Name name, int dispid, Name enumeration, Browsable browsable, Name help = {})
{
    Property row = plain<T, Get, Put>(name, dispid, browsable, help);
    row.enumeration = engine::findEnumeration(enumeration);
    return row;
}

template <class T, T (Vela::*Get)() const, void (Vela::*Put)(Name)>
Property textRow(Name name, int dispid, Browsable browsable, Name help, bool bindable)
{
    return {.name = name,
            .dispid = dispid,
            .browsable = browsable,
            .bindable = bindable,
            .help = help,
            .get = [](Vela& control) -> engine::Value { return std::u16string((control.*Get)()); },
            .put = [](Vela& control, const engine::Value& value) { (control.*Put)(std::get<std::u16string>(value)); }};
}

template <std::u16string (Vela::*Get)() const, void (Vela::*Put)(Name)>
Property text(Name name, int dispid, Browsable browsable, Name help = {}, bool bindable = false)
{
    return textRow<std::u16string, Get, Put>(name, dispid, browsable, help, bindable);
}

template <const std::u16string& (Vela::*Get)() const, void (Vela::*Put)(Name)>
Property stored(Name name, int dispid, Browsable browsable, Name help = {})
{
    return textRow<const std::u16string&, Get, Put>(name, dispid, browsable, help, false);
}

template <class T, T (Vela::*Get)() const>
Property readOnly(Name name, int dispid, Browsable browsable, Name help = {})
{
    return {.name = name,
            .dispid = dispid,
            .type = propertyTypeOf<T>(),
            .access = Access::read,
            .browsable = browsable,
            .help = help,
            .get = &get<T, Get>};
}

// By name a font is its face; only a font object can be put.
Property fontRow(Name name, int dispid)
{
    return {.name = name,
            .dispid = dispid,
            .type = PropertyType::font,
            .access = Access::readWriteReference,
            .get = [](Vela& control) -> engine::Value { return control.Font().name; },
            .put = [](Vela&, const engine::Value&) { engine::raise(engine::error_number::typeMismatch); }};
}

Property valueRow(Name name, int dispid)
{
    return {.name = name,
            .dispid = dispid,
            .type = PropertyType::variant,
            .browsable = no,
            .bindable = true,
            .get = [](Vela& control) { return control.Value(); },
            .put = [](Vela& control, const engine::Value& value) { control.Value(value); }};
}

} // namespace

const PropertyRows& propertyRows()
{
    static const PropertyRows rows{{
        plain<bool, &Vela::AceitaNegativos, &Vela::AceitaNegativos>(
            u"AceitaNegativos", 1, no,
            u"Habilita o uso o sinal de negativo quando a propriedade TextType for do tipo numerico"),
        enumerated<Alinhamento, &Vela::Alignment, &Vela::Alignment>(u"Alignment", 2, u"Alinhamento", yes),
        enumerated<Aparencia, &Vela::Appearance, &Vela::Appearance>(u"Appearance", -520, u"Aparencia", yes),
        plain<bool, &Vela::AutoSelect, &Vela::AutoSelect>(u"AutoSelect", 3, yes,
                                                          u"Faz a AutoSeleção do texto quando a Caixa ganhar o Foco"),
        plain<bool, &Vela::AutoTAB, &Vela::AutoTAB>(
            u"AutoTAB", 4, yes,
            u"Quando o Campo Completar Qtd de Carateres do MaxLenght Então pula para o próximo campo"),
        plain<Colour, &Vela::BackColor, &Vela::BackColor>(u"BackColor", -501, yes),
        plain<Colour, &Vela::BackColor_MouseMove, &Vela::BackColor_MouseMove>(u"BackColor_MouseMove", 5, yes),
        plain<Colour, &Vela::BackColorGotFocus, &Vela::BackColorGotFocus>(u"BackColorGotFocus", 6, yes),
        plain<Colour, &Vela::BackColorLostFocus, &Vela::BackColorLostFocus>(u"BackColorLostFocus", 7, yes),
        plain<Colour, &Vela::BorderColor_MouseMove, &Vela::BorderColor_MouseMove>(u"BorderColor_MouseMove", 8, yes),
        plain<Colour, &Vela::BorderColorGotfocus, &Vela::BorderColorGotfocus>(u"BorderColorGotfocus", 9, yes),
        plain<Colour, &Vela::BorderColorLostfocus, &Vela::BorderColorLostfocus>(u"BorderColorLostfocus", 10, yes),
        enumerated<eEstiloBorda, &Vela::BorderStyle, &Vela::BorderStyle>(
            u"BorderStyle", -504, u"eEstiloBorda", yes, u"Estando true, o controle colocar uma borda Flat"),
        plain<Colour, &Vela::Calendar_BackColor, &Vela::Calendar_BackColor>(u"Calendar_BackColor", 11, no),
        plain<Colour, &Vela::Calendar_ColorWeekDay, &Vela::Calendar_ColorWeekDay>(u"Calendar_ColorWeekDay", 12, no),
        plain<Colour, &Vela::Calendar_ComboBackColor, &Vela::Calendar_ComboBackColor>(u"Calendar_ComboBackColor", 13,
                                                                                      no),
        plain<Colour, &Vela::Calendar_DayActive, &Vela::Calendar_DayActive>(u"Calendar_DayActive", 14, no),
        plain<Colour, &Vela::Calendar_DayInactive, &Vela::Calendar_DayInactive>(u"Calendar_DayInactive", 15, no),
        plain<Colour, &Vela::Calendar_FormBackcolor, &Vela::Calendar_FormBackcolor>(u"Calendar_FormBackcolor", 16, no),
        plain<Colour, &Vela::Calendar_Selected, &Vela::Calendar_Selected>(
            u"Calendar_Selected", 17, no, u"Muda Cor do Circulo que seleciona as datas"),
        plain<bool, &Vela::CampoRequerido, &Vela::CampoRequerido>(u"CampoRequerido", 18, yes),
        stored<&Vela::CaractLiberados, &Vela::CaractLiberados>(u"CaractLiberados", 19, no),
        plain<Colour, &Vela::CorValorNeg, &Vela::CorValorNeg>(u"CorValorNeg", 20, no),
        plain<Colour, &Vela::CorValorPos, &Vela::CorValorPos>(u"CorValorPos", 21, no),
        stored<&Vela::DateFormat, &Vela::DateFormat>(u"DateFormat", 22, no),
        stored<&Vela::Delimitador, &Vela::Delimitador>(u"Delimitador", 23, yes),
        stored<&Vela::Delimitador02, &Vela::Delimitador02>(u"Delimitador02", 24, no),
        stored<&Vela::Delimitador03, &Vela::Delimitador03>(u"Delimitador03", 25, no),
        stored<&Vela::Delimitador04, &Vela::Delimitador04>(u"Delimitador04", 26, no),
        plain<bool, &Vela::Enabled, &Vela::Enabled>(u"Enabled", -514, yes),
        plain<bool, &Vela::EnterAsTab, &Vela::EnterAsTab>(u"EnterAsTab", 27, yes,
                                                          u"Simula um TAB quando é pressionado o ENTER"),
        plain<Colour, &Vela::Error_ForeColor, &Vela::Error_ForeColor>(u"Error_ForeColor", 28, no),
        plain<bool, &Vela::ErrorAlert, &Vela::ErrorAlert>(u"ErrorAlert", 29, hidden,
                                                          u"Exibir alerta que o valor digitado esta incorreto"),
        plain<bool, &Vela::ErrorFocus, &Vela::ErrorFocus>(u"ErrorFocus", 30, no),
        plain<bool, &Vela::ErrorMsgCustom, &Vela::ErrorMsgCustom>(
            u"ErrorMsgCustom", 31, hidden,
            u"Habilita para que o componente use as mensagens de erro padrao do Componente"),
        plain<bool, &Vela::ErrorTextClear, &Vela::ErrorTextClear>(u"ErrorTextClear", 32, no),
        stored<&Vela::ErrorTextMessage, &Vela::ErrorTextMessage>(
            u"ErrorTextMessage", 33, hidden, u"Mostra o texto informado nesta propriedade quando houver erro"),
        fontRow(u"Font", -512),
        plain<bool, &Vela::FontBold, &Vela::FontBold>(u"FontBold", 34, no),
        plain<bool, &Vela::FontItalic, &Vela::FontItalic>(u"FontItalic", 35, no),
        stored<&Vela::FontName, &Vela::FontName>(u"FontName", 36, no),
        plain<std::uint8_t, &Vela::FontSize, &Vela::FontSize>(u"FontSize", 37, no),
        plain<bool, &Vela::FontStrikethru, &Vela::FontStrikethru>(u"FontStrikethru", 38, no),
        plain<bool, &Vela::FontUnderline, &Vela::FontUnderline>(u"FontUnderline", 39, no),
        plain<Colour, &Vela::ForeColor_GotFocus, &Vela::ForeColor_GotFocus>(u"ForeColor_GotFocus", 40, yes),
        plain<Colour, &Vela::ForeColor_LostFocus, &Vela::ForeColor_LostFocus>(u"ForeColor_LostFocus", 41, yes),
        stored<&Vela::FormatoExibData, &Vela::FormatoExibData>(u"FormatoExibData", 42, no),
        stored<&Vela::FormatoRetornoData, &Vela::FormatoRetornoData>(u"FormatoRetornoData", 43, no),
        stored<&Vela::FormatoRetornoData02, &Vela::FormatoRetornoData02>(u"FormatoRetornoData02", 44, no),
        stored<&Vela::FormatoRetornoData03, &Vela::FormatoRetornoData03>(u"FormatoRetornoData03", 45, no),
        stored<&Vela::FormatoRetornoData04, &Vela::FormatoRetornoData04>(u"FormatoRetornoData04", 46, no),
        readOnly<std::int32_t, &Vela::hwnd>(u"hwnd", -515, yes, u"Hwnd do TextBox"),
        readOnly<std::int32_t, &Vela::HwndCtl>(u"HwndCtl", 47, yes, u"Hwnd do UserControl"),
        stored<&Vela::IF_IsEmpty, &Vela::IF_IsEmpty>(
            u"IF_IsEmpty", 48, yes,
            u"Assume o texto informado nesta propriedade quando a caixa de texto perde o foco vazia"),
        plain<bool, &Vela::InserirZeros, &Vela::InserirZeros>(u"InserirZeros", 49, no),
        plain<bool, &Vela::Locked, &Vela::Locked>(u"Locked", 50, yes),
        stored<&Vela::NomeCampo, &Vela::NomeCampo>(u"NomeCampo", 51, yes),
        stored<&Vela::Mask, &Vela::Mask>(u"Mask", 52, no),
        stored<&Vela::MaskRules, &Vela::MaskRules>(u"MaskRules", 53, no),
        plain<bool, &Vela::MaskSomenteNumeros, &Vela::MaskSomenteNumeros>(u"MaskSomenteNumeros", 54, no),
        plain<bool, &Vela::MaskToNumeric, &Vela::MaskToNumeric>(
            u"MaskToNumeric", 55, yes, u"Utilizar Máscara de Entrada para o tipo de dados númericos"),
        plain<std::int16_t, &Vela::MaxLength, &Vela::MaxLength>(
            u"MaxLength", 56, yes, u"Quantidade de caracteres que a caixa de texto irá aceita"),
        stored<&Vela::MsgRequerido, &Vela::MsgRequerido>(
            u"MsgRequerido", 57, yes,
            u"Serve para identificar o nome do text, Trabalha em conjunto com a propriedade (CampoRequerido=True)"),
        plain<bool, &Vela::MultLine, &Vela::MultLine>(u"MultLine", 58, yes),
        readOnly<std::u16string, &Vela::nomeContainer>(u"nomeContainer", 59, yes),
        text<&Vela::PasswordChar, &Vela::PasswordChar>(u"PasswordChar", 60, yes),
        stored<&Vela::PromptChar, &Vela::PromptChar>(u"PromptChar", 61, no),
        plain<std::uint8_t, &Vela::QtdCasasDec, &Vela::QtdCasasDec>(u"QtdCasasDec", 62, no),
        plain<std::int32_t, &Vela::SelLength, &Vela::SelLength>(u"SelLength", 63, no),
        plain<std::int16_t, &Vela::SelStart, &Vela::SelStart>(u"SelStart", 64, no),
        plain<bool, &Vela::ShowButtonCalendario, &Vela::ShowButtonCalendario>(u"ShowButtonCalendario", 65, no),
        plain<bool, &Vela::ShowButtonCalculadora, &Vela::ShowButtonCalculadora>(u"ShowButtonCalculadora", 66, yes),
        enumerated<Simbolos, &Vela::SimbolAgrupMilhar, &Vela::SimbolAgrupMilhar>(u"SimbolAgrupMilhar", 67, u"Simbolos",
                                                                                 no),
        enumerated<Simbolos, &Vela::SimbolDecExib, &Vela::SimbolDecExib>(u"SimbolDecExib", 68, u"Simbolos", no),
        enumerated<Simbolos, &Vela::SimbolDecRet, &Vela::SimbolDecRet>(u"SimbolDecRet", 69, u"Simbolos", no),
        stored<&Vela::SimboloMonetario, &Vela::SimboloMonetario>(u"SimboloMonetario", 70, no),
        text<&Vela::Text, &Vela::Text>(u"Text", 0, yes, {}, true),
        plain<bool, &Vela::TextoLivre, &Vela::TextoLivre>(u"TextoLivre", 71, no),
        enumerated<TipoText, &Vela::TextType, &Vela::TextType>(u"TextType", 72, u"TipoText", yes),
        enumerated<tipoTamanhoLetra, &Vela::tipoLetra, &Vela::tipoLetra>(u"tipoLetra", 73, u"tipoTamanhoLetra", no),
        stored<&Vela::ToolTipGotFocus, &Vela::ToolTipGotFocus>(u"ToolTipGotFocus", 74, yes),
        enumerated<eIconeToolTipText, &Vela::ToolTipGotFocusTipo, &Vela::ToolTipGotFocusTipo>(
            u"ToolTipGotFocusTipo", 75, u"eIconeToolTipText", yes),
        plain<bool, &Vela::UpTAB, &Vela::UpTAB>(u"UpTAB", 76, no),
        stored<&Vela::ValorPadrao, &Vela::ValorPadrao>(u"ValorPadrao", 77, yes),
        valueRow(u"Value", 78),
        enumerated<eEsquemasRetorno, &Vela::EsquemaRetornoAtual, &Vela::EsquemaRetornoAtual>(u"EsquemaRetornoAtual", 79,
                                                                                             u"eEsquemasRetorno", yes),
    }};
    return rows;
}

} // namespace vela::control
