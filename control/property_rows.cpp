// The rows of the property table, in the order of the interface. DISPIDs never change; rows are appended.
#include "control/property_rows.h"

#include "control/conversion.h"
#include "control/vela.h"
#include "engine/error.h"
#include "engine/field/property_types.h"

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

// Read by name, a font answers the name of its face; only a font object can be put.
Property fontRow(Name name, int dispid, Name help)
{
    return {.name = name,
            .dispid = dispid,
            .type = PropertyType::font,
            .access = Access::readWriteReference,
            .help = help,
            .get = [](Vela& control) -> engine::Value { return control.Font().name; },
            .put = [](Vela&, const engine::Value&) { engine::raise(engine::error_number::typeMismatch); }};
}

Property valueRow(Name name, int dispid, Name help)
{
    return {.name = name,
            .dispid = dispid,
            .type = PropertyType::variant,
            .browsable = no,
            .bindable = true,
            .help = help,
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
        enumerated<Alinhamento, &Vela::Alignment, &Vela::Alignment>(u"Alignment", 2, u"Alinhamento", yes,
                                                                    u"Alinhamento do texto na caixa"),
        enumerated<Aparencia, &Vela::Appearance, &Vela::Appearance>(
            u"Appearance", -520, u"Aparencia", yes,
            u"Borda rebaixada da própria caixa, ou borda desenhada pelo controle"),
        plain<bool, &Vela::AutoSelect, &Vela::AutoSelect>(u"AutoSelect", 3, yes,
                                                          u"Faz a AutoSeleção do texto quando a Caixa ganhar o Foco"),
        plain<bool, &Vela::AutoTAB, &Vela::AutoTAB>(
            u"AutoTAB", 4, yes,
            u"Quando o Campo Completar Qtd de Carateres do MaxLenght Então pula para o próximo campo"),
        plain<Colour, &Vela::BackColor, &Vela::BackColor>(
            u"BackColor", -501, yes, u"Cor de fundo atual da caixa; define também BackColorGotFocus"),
        plain<Colour, &Vela::BackColor_MouseMove, &Vela::BackColor_MouseMove>(
            u"BackColor_MouseMove", 5, yes, u"Cor de fundo enquanto o ponteiro está sobre o campo"),
        plain<Colour, &Vela::BackColorGotFocus, &Vela::BackColorGotFocus>(u"BackColorGotFocus", 6, yes,
                                                                          u"Cor de fundo enquanto o campo tem o foco"),
        plain<Colour, &Vela::BackColorLostFocus, &Vela::BackColorLostFocus>(
            u"BackColorLostFocus", 7, yes, u"Cor de fundo enquanto o campo não tem o foco"),
        plain<Colour, &Vela::BorderColor_MouseMove, &Vela::BorderColor_MouseMove>(
            u"BorderColor_MouseMove", 8, yes, u"Cor da borda enquanto o ponteiro está sobre o campo"),
        plain<Colour, &Vela::BorderColorGotfocus, &Vela::BorderColorGotfocus>(
            u"BorderColorGotfocus", 9, yes, u"Cor da borda enquanto o campo tem o foco"),
        plain<Colour, &Vela::BorderColorLostfocus, &Vela::BorderColorLostfocus>(
            u"BorderColorLostfocus", 10, yes, u"Cor da borda enquanto o campo não tem o foco"),
        enumerated<eEstiloBorda, &Vela::BorderStyle, &Vela::BorderStyle>(
            u"BorderStyle", -504, u"eEstiloBorda", yes, u"Estando true, o controle colocar uma borda Flat"),
        plain<Colour, &Vela::Calendar_BackColor, &Vela::Calendar_BackColor>(
            u"Calendar_BackColor", 11, no,
            u"Cor do painel do calendário; as sete cores do calendário são comuns a todo o processo"),
        plain<Colour, &Vela::Calendar_ColorWeekDay, &Vela::Calendar_ColorWeekDay>(
            u"Calendar_ColorWeekDay", 12, no, u"Cor dos nomes dos dias da semana no calendário"),
        plain<Colour, &Vela::Calendar_ComboBackColor, &Vela::Calendar_ComboBackColor>(
            u"Calendar_ComboBackColor", 13, no, u"Cor de fundo das listas de mês e ano do calendário"),
        plain<Colour, &Vela::Calendar_DayActive, &Vela::Calendar_DayActive>(
            u"Calendar_DayActive", 14, no, u"Cor dos dias do mês mostrado no calendário"),
        plain<Colour, &Vela::Calendar_DayInactive, &Vela::Calendar_DayInactive>(
            u"Calendar_DayInactive", 15, no, u"Cor dos dias do mês anterior e do seguinte no calendário"),
        plain<Colour, &Vela::Calendar_FormBackcolor, &Vela::Calendar_FormBackcolor>(u"Calendar_FormBackcolor", 16, no,
                                                                                    u"Cor da borda do calendário"),
        plain<Colour, &Vela::Calendar_Selected, &Vela::Calendar_Selected>(
            u"Calendar_Selected", 17, no, u"Muda Cor do Circulo que seleciona as datas"),
        plain<bool, &Vela::CampoRequerido, &Vela::CampoRequerido>(
            u"CampoRequerido", 18, yes, u"Marca o campo como obrigatório para o programa; o controle não verifica"),
        stored<&Vela::CaractLiberados, &Vela::CaractLiberados>(
            u"CaractLiberados", 19, no, u"Caracteres que podem ser digitados quando TextoLivre é False"),
        plain<Colour, &Vela::CorValorNeg, &Vela::CorValorNeg>(
            u"CorValorNeg", 20, no, u"Cor do texto de um número negativo depois de se sair do campo"),
        plain<Colour, &Vela::CorValorPos, &Vela::CorValorPos>(
            u"CorValorPos", 21, no, u"Cor do texto de um número positivo depois de se sair do campo"),
        stored<&Vela::DateFormat, &Vela::DateFormat>(
            u"DateFormat", 22, no,
            u"Posições de dia, mês e ano (ou hora, minuto e segundo) e formato das datas escritas no campo"),
        stored<&Vela::Delimitador, &Vela::Delimitador>(u"Delimitador", 23, yes,
                                                       u"Texto em volta de Value no primeiro esquema de retorno"),
        stored<&Vela::Delimitador02, &Vela::Delimitador02>(u"Delimitador02", 24, no,
                                                           u"Texto em volta de Value no segundo esquema de retorno"),
        stored<&Vela::Delimitador03, &Vela::Delimitador03>(u"Delimitador03", 25, no,
                                                           u"Texto em volta de Value no terceiro esquema de retorno"),
        stored<&Vela::Delimitador04, &Vela::Delimitador04>(u"Delimitador04", 26, no,
                                                           u"Texto em volta de Value no quarto esquema de retorno"),
        plain<bool, &Vela::Enabled, &Vela::Enabled>(u"Enabled", -514, yes, u"Se o campo pode ser usado"),
        plain<bool, &Vela::EnterAsTab, &Vela::EnterAsTab>(u"EnterAsTab", 27, yes,
                                                          u"Simula um TAB quando é pressionado o ENTER"),
        plain<Colour, &Vela::Error_ForeColor, &Vela::Error_ForeColor>(u"Error_ForeColor", 28, no,
                                                                      u"Cor do texto de um valor errado"),
        plain<bool, &Vela::ErrorAlert, &Vela::ErrorAlert>(u"ErrorAlert", 29, hidden,
                                                          u"Exibir alerta que o valor digitado esta incorreto"),
        plain<bool, &Vela::ErrorFocus, &Vela::ErrorFocus>(u"ErrorFocus", 30, no,
                                                          u"Se o foco fica no campo até que o valor esteja certo"),
        plain<bool, &Vela::ErrorMsgCustom, &Vela::ErrorMsgCustom>(
            u"ErrorMsgCustom", 31, hidden,
            u"Habilita para que o componente use as mensagens de erro padrao do Componente"),
        plain<bool, &Vela::ErrorTextClear, &Vela::ErrorTextClear>(u"ErrorTextClear", 32, no,
                                                                  u"Se um valor errado é apagado"),
        stored<&Vela::ErrorTextMessage, &Vela::ErrorTextMessage>(
            u"ErrorTextMessage", 33, hidden, u"Mostra o texto informado nesta propriedade quando houver erro"),
        fontRow(u"Font", -512, u"Fonte da caixa, como objeto"),
        plain<bool, &Vela::FontBold, &Vela::FontBold>(u"FontBold", 34, no, u"Negrito"),
        plain<bool, &Vela::FontItalic, &Vela::FontItalic>(u"FontItalic", 35, no, u"Itálico"),
        stored<&Vela::FontName, &Vela::FontName>(u"FontName", 36, no, u"Nome da fonte"),
        plain<std::uint8_t, &Vela::FontSize, &Vela::FontSize>(u"FontSize", 37, no, u"Tamanho da fonte em pontos"),
        plain<bool, &Vela::FontStrikethru, &Vela::FontStrikethru>(u"FontStrikethru", 38, no, u"Tachado"),
        plain<bool, &Vela::FontUnderline, &Vela::FontUnderline>(u"FontUnderline", 39, no, u"Sublinhado"),
        plain<Colour, &Vela::ForeColor_GotFocus, &Vela::ForeColor_GotFocus>(
            u"ForeColor_GotFocus", 40, yes, u"Cor do texto enquanto o campo tem o foco"),
        plain<Colour, &Vela::ForeColor_LostFocus, &Vela::ForeColor_LostFocus>(
            u"ForeColor_LostFocus", 41, yes, u"Cor do texto enquanto o campo não tem o foco"),
        stored<&Vela::FormatoExibData, &Vela::FormatoExibData>(
            u"FormatoExibData", 42, no, u"O que um campo de data vazio mostra; do mesmo tamanho de DateFormat"),
        stored<&Vela::FormatoRetornoData, &Vela::FormatoRetornoData>(
            u"FormatoRetornoData", 43, no, u"Formato da data de Value no primeiro esquema de retorno"),
        stored<&Vela::FormatoRetornoData02, &Vela::FormatoRetornoData02>(
            u"FormatoRetornoData02", 44, no, u"Formato da data de Value no segundo esquema de retorno"),
        stored<&Vela::FormatoRetornoData03, &Vela::FormatoRetornoData03>(
            u"FormatoRetornoData03", 45, no, u"Formato da data de Value no terceiro esquema de retorno"),
        stored<&Vela::FormatoRetornoData04, &Vela::FormatoRetornoData04>(
            u"FormatoRetornoData04", 46, no, u"Formato da data de Value no quarto esquema de retorno"),
        readOnly<std::int32_t, &Vela::hwnd>(u"hwnd", -515, yes, u"Hwnd do TextBox"),
        readOnly<std::int32_t, &Vela::HwndCtl>(u"HwndCtl", 47, yes, u"Hwnd do UserControl"),
        stored<&Vela::IF_IsEmpty, &Vela::IF_IsEmpty>(
            u"IF_IsEmpty", 48, yes,
            u"Assume o texto informado nesta propriedade quando a caixa de texto perde o foco vazia"),
        plain<bool, &Vela::InserirZeros, &Vela::InserirZeros>(
            u"InserirZeros", 49, no, u"Se as casas decimais que faltam são preenchidas com zeros"),
        plain<bool, &Vela::Locked, &Vela::Locked>(u"Locked", 50, yes, u"Se a digitação é recusada"),
        stored<&Vela::NomeCampo, &Vela::NomeCampo>(
            u"NomeCampo", 51, yes, u"Nome do campo para as pessoas: título da dica e nome para leitores de tela"),
        stored<&Vela::Mask, &Vela::Mask>(u"Mask", 52, no,
                                         u"Modelo do campo com máscara: PromptChar em cada posição de entrada"),
        stored<&Vela::MaskRules, &Vela::MaskRules>(
            u"MaskRules", 53, no, u"O que cada posição aceita: # algarismo, @ letra, ? letra ou algarismo"),
        plain<bool, &Vela::MaskSomenteNumeros, &Vela::MaskSomenteNumeros>(
            u"MaskSomenteNumeros", 54, no, u"Guardada e salva em campos Data e Mascara; sem efeito"),
        plain<bool, &Vela::MaskToNumeric, &Vela::MaskToNumeric>(
            u"MaskToNumeric", 55, yes, u"Utilizar Máscara de Entrada para o tipo de dados númericos"),
        plain<std::int16_t, &Vela::MaxLength, &Vela::MaxLength>(
            u"MaxLength", 56, yes, u"Quantidade de caracteres que a caixa de texto irá aceita"),
        stored<&Vela::MsgRequerido, &Vela::MsgRequerido>(
            u"MsgRequerido", 57, yes,
            u"Serve para identificar o nome do text, Trabalha em conjunto com a propriedade (CampoRequerido=True)"),
        plain<bool, &Vela::MultLine, &Vela::MultLine>(u"MultLine", 58, yes,
                                                      u"Se a caixa tem várias linhas; só no projeto"),
        readOnly<std::u16string, &Vela::nomeContainer>(u"nomeContainer", 59, yes,
                                                       u"Nome do formulário ou da moldura que contém o controle"),
        text<&Vela::PasswordChar, &Vela::PasswordChar>(u"PasswordChar", 60, yes,
                                                       u"Caractere mostrado no lugar de cada um digitado"),
        stored<&Vela::PromptChar, &Vela::PromptChar>(u"PromptChar", 61, no,
                                                     u"Caractere que marca as posições de entrada em Mask"),
        plain<std::uint8_t, &Vela::QtdCasasDec, &Vela::QtdCasasDec>(
            u"QtdCasasDec", 62, no, u"Casas decimais; 0 desliga os três símbolos e InserirZeros"),
        plain<std::int32_t, &Vela::SelLength, &Vela::SelLength>(u"SelLength", 63, no,
                                                                u"Quantos caracteres estão selecionados"),
        plain<std::int16_t, &Vela::SelStart, &Vela::SelStart>(u"SelStart", 64, no,
                                                              u"Posição do cursor, 0 antes do primeiro caractere"),
        plain<bool, &Vela::ShowButtonCalendario, &Vela::ShowButtonCalendario>(
            u"ShowButtonCalendario", 65, no, u"Se aparece o botão que abre o calendário"),
        plain<bool, &Vela::ShowButtonCalculadora, &Vela::ShowButtonCalculadora>(
            u"ShowButtonCalculadora", 66, yes, u"Se aparece o botão que abre a calculadora, e F2 a abre"),
        enumerated<Simbolos, &Vela::SimbolAgrupMilhar, &Vela::SimbolAgrupMilhar>(
            u"SimbolAgrupMilhar", 67, u"Simbolos", no, u"Símbolo de milhares mostrado ao sair do campo"),
        enumerated<Simbolos, &Vela::SimbolDecExib, &Vela::SimbolDecExib>(u"SimbolDecExib", 68, u"Simbolos", no,
                                                                         u"Símbolo decimal que se digita e se vê"),
        enumerated<Simbolos, &Vela::SimbolDecRet, &Vela::SimbolDecRet>(
            u"SimbolDecRet", 69, u"Simbolos", no,
            u"Símbolo decimal da região do usuário, com o qual Value é calculado"),
        stored<&Vela::SimboloMonetario, &Vela::SimboloMonetario>(
            u"SimboloMonetario", 70, no,
            u"O que é posto antes do número ao sair do campo; \";\" separa o que vai antes do que vai depois"),
        text<&Vela::Text, &Vela::Text>(u"Text", 0, yes, u"O que a caixa mostra", true),
        plain<bool, &Vela::TextoLivre, &Vela::TextoLivre>(u"TextoLivre", 71, no,
                                                          u"Se qualquer caractere pode ser digitado"),
        enumerated<TipoText, &Vela::TextType, &Vela::TextType>(u"TextType", 72, u"TipoText", yes,
                                                               u"Tipo de dado que o campo contém"),
        enumerated<tipoTamanhoLetra, &Vela::tipoLetra, &Vela::tipoLetra>(u"tipoLetra", 73, u"tipoTamanhoLetra", no,
                                                                         u"Maiúsculas, minúsculas ou nomes próprios"),
        stored<&Vela::ToolTipGotFocus, &Vela::ToolTipGotFocus>(u"ToolTipGotFocus", 74, yes,
                                                               u"Dica mostrada quando o campo recebe o foco"),
        enumerated<eIconeToolTipText, &Vela::ToolTipGotFocusTipo, &Vela::ToolTipGotFocusTipo>(
            u"ToolTipGotFocusTipo", 75, u"eIconeToolTipText", yes, u"Ícone da dica"),
        plain<bool, &Vela::UpTAB, &Vela::UpTAB>(
            u"UpTAB", 76, no, u"Se as setas para baixo e para cima passam ao próximo campo e ao anterior"),
        stored<&Vela::ValorPadrao, &Vela::ValorPadrao>(
            u"ValorPadrao", 77, yes, u"Conteúdo padrão ou, em campos de data, uma fórmula: %date, %hour"),
        valueRow(u"Value", 78, u"Conteúdo como o programa o quer, conforme TextType e o esquema de retorno"),
        enumerated<eEsquemasRetorno, &Vela::EsquemaRetornoAtual, &Vela::EsquemaRetornoAtual>(
            u"EsquemaRetornoAtual", 79, u"eEsquemasRetorno", yes,
            u"Esquema de retorno em vigor; defina depois do formato e do delimitador"),
    }};
    return rows;
}

} // namespace vela::control
