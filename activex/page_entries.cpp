// The table of properties and the widgets that edit them.
#include "activex/page_entries.h"

namespace vela::activex {

namespace {

using enum pages::PageKind;

constexpr PageEntry entries[] = {
    {u"TextType", ppPrincipal, u"cboTextType"},
    {u"SimboloMonetario", ppPrincipal, u"txtSimboloMonetario"},
    {u"SimbolDecExib", ppPrincipal, u"cboDecimalExibicao"},
    {u"SimbolDecRet", ppPrincipal, u"cboDecimalRetorno"},
    {u"SimbolAgrupMilhar", ppPrincipal, u"cboSeparadorMilhar"},
    {u"QtdCasasDec", ppPrincipal, u"txtQtdCasasDec"},
    {u"CorValorNeg", ppPrincipal, u"PicCorNegativa"},
    {u"CorValorPos", ppPrincipal, u"PicCorPositiva"},
    {u"AceitaNegativos", ppPrincipal, u"chkAceitaNegativos"},
    {u"InserirZeros", ppPrincipal, u"chkInserirZeros"},
    {u"DateFormat", ppPrincipal, u"cboFormatoData"},
    {u"FormatoExibData", ppPrincipal, u"txtFormatoExibData"},
    {u"FormatoRetornoData", ppPrincipal, u"cboDataRetorno"},
    {u"FormatoRetornoData02", ppPrincipal, u"cboDataRetorno02"},
    {u"FormatoRetornoData03", ppPrincipal, u"cboDataRetorno03"},
    {u"FormatoRetornoData04", ppPrincipal, u"cboDataRetorno04"},
    {u"MaskSomenteNumeros", ppPrincipal, u"chkMaskSomenteNumeros"},
    {u"Mask", ppPrincipal, u"txtMascara"},
    {u"MaskRules", ppPrincipal, u"txtMaskRules"},
    {u"PromptChar", ppPrincipal, u"txtPromptChar"},
    {u"tipoLetra", ppPrincipal, u"cboTipoLetra"},
    {u"TextoLivre", ppPrincipal, u"chkTextoLivre"},
    {u"ShowButtonCalendario", ppPrincipal, u"chkShowButtonCalendario"},
    {u"ShowButtonCalculadora", ppPrincipal, u"chkShowButtonCalculadora"},
    {u"CaractLiberados", ppPrincipal, u"lstLetrasPermitidas"},
    {u"Delimitador", ppGeral, u"txtDelimitador"},
    {u"Delimitador02", ppGeral, u"txtDelimitador02"},
    {u"Delimitador03", ppGeral, u"txtDelimitador03"},
    {u"Delimitador04", ppGeral, u"txtDelimitador04"},
    {u"UpTAB", ppGeral, u"chkSimulaUpTAB"},
    {u"EnterAsTab", ppGeral, u"chkSendTab"},
    {u"AutoSelect", ppGeral, u"chkAutoSelect"},
    {u"BackColorGotFocus", ppGeral, u"PicCorFundoGot"},
    {u"BackColorLostFocus", ppGeral, u"PicCorFundoLost"},
    {u"IF_IsEmpty", ppGeral, u"txtISEmpty"},
    {u"ErrorAlert", ppErros, u"chkExibirAlertaPadrao"},
    {u"ErrorMsgCustom", ppErros, u"chkPersonalizarMsgErro"},
    {u"ErrorTextMessage", ppErros, u"txtMsgCustom"},
    {u"ErrorTextClear", ppErros, u"chkLimpaCampo"},
    {u"ErrorFocus", ppErros, u"chkErrorFocus"},
    {u"Error_ForeColor", ppErros, u"PicCor"},
    {u"FontName", ppFonte, u"CboFontName"},
    {u"FontSize", ppFonte, u"txtSize"},
    {u"FontBold", ppFonte, u"Negrito"},
    {u"FontItalic", ppFonte, u"Italico"},
    {u"FontUnderline", ppFonte, u"Sublinhado"},
    {u"FontStrikethru", ppFonte, u"Cortado"},
    {u"Calendar_BackColor", ppCalendario, u"PicCorCalendario", 0},
    {u"Calendar_ComboBackColor", ppCalendario, u"PicCorCalendario", 1},
    {u"Calendar_DayActive", ppCalendario, u"PicCorCalendario", 2},
    {u"Calendar_DayInactive", ppCalendario, u"PicCorCalendario", 3},
    {u"Calendar_ColorWeekDay", ppCalendario, u"PicCorCalendario", 4},
    {u"Calendar_FormBackcolor", ppCalendario, u"PicCorCalendario", 5},
    {u"Calendar_Selected", ppCalendario, u"PicCorCalendario", 6},
};

} // namespace

const PageEntry* findPageEntry(std::u16string_view property) noexcept
{
    for (const PageEntry& entry : entries)
        if (entry.property == property)
            return &entry;
    return nullptr;
}

} // namespace vela::activex
