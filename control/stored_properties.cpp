// The setters that store a value and mark it changed, one line each.
// Oddity: Error_ForeColor announces itself as "ErrorForeColor", tipoLetra as "tipoletra"; hosts compare these names.
#include "control/internal.h"

namespace vela::control {

// clang-format off
void Vela::AceitaNegativos(bool value) { store(settings_.aceitaNegativos, value, u"AceitaNegativos"); }
void Vela::AutoSelect(bool value) { store(settings_.autoSelect, value, u"AutoSelect"); }
void Vela::AutoTAB(bool value) { store(settings_.autoTab, value, u"AutoTAB"); }
void Vela::BackColor_MouseMove(Colour value) { store(settings_.backColorMouseMove, value, u"BackColor_MouseMove"); }
void Vela::BackColorGotFocus(Colour value) { store(settings_.backColorGotFocus, value, u"BackColorGotFocus"); }
void Vela::BackColorLostFocus(Colour value) { store(settings_.backColorLostFocus, value, u"BackColorLostFocus"); }
void Vela::BorderColor_MouseMove(Colour value) { store(settings_.borderColorMouseMove, value, u"BorderColor_MouseMove"); }
void Vela::BorderColorGotfocus(Colour value) { store(settings_.borderColorGotfocus, value, u"BorderColorGotfocus"); }
void Vela::CaractLiberados(View value) { store(settings_.caractLiberados, value, u"CaractLiberados"); }
void Vela::CorValorNeg(Colour value) { store(settings_.corValorNeg, value, u"CorValorNeg"); }
void Vela::CorValorPos(Colour value) { store(settings_.corValorPos, value, u"CorValorPos"); }
void Vela::DateFormat(View value) { store(settings_.dateFormat, value, u"DateFormat"); }
void Vela::Delimitador(View value) { store(settings_.delimiters[0], value, u"Delimitador"); }
void Vela::Delimitador02(View value) { store(settings_.delimiters[1], value, u"Delimitador02"); }
void Vela::Delimitador03(View value) { store(settings_.delimiters[2], value, u"Delimitador03"); }
void Vela::Delimitador04(View value) { store(settings_.delimiters[3], value, u"Delimitador04"); }
void Vela::EnterAsTab(bool value) { store(settings_.enterAsTab, value, u"EnterAsTab"); }
void Vela::Error_ForeColor(Colour value) { store(settings_.errorForeColor, value, u"ErrorForeColor"); }
void Vela::ErrorAlert(bool value) { store(settings_.errorAlert, value, u"ErrorAlert"); }
void Vela::ErrorFocus(bool value) { store(settings_.errorFocus, value, u"ErrorFocus"); }
void Vela::ErrorMsgCustom(bool value) { store(settings_.errorMsgCustom, value, u"ErrorMsgCustom"); }
void Vela::ErrorTextClear(bool value) { store(settings_.errorTextClear, value, u"ErrorTextClear"); }
void Vela::ErrorTextMessage(View value) { store(settings_.errorTextMessage, value, u"ErrorTextMessage"); }
void Vela::ForeColor_GotFocus(Colour value) { store(settings_.foreColorGotFocus, value, u"ForeColor_GotFocus"); }
void Vela::ForeColor_LostFocus(Colour value) { store(settings_.foreColorLostFocus, value, u"ForeColor_LostFocus"); }
void Vela::FormatoExibData(View value) { store(settings_.formatoExibData, value, u"FormatoExibData"); }
void Vela::FormatoRetornoData(View value) { store(settings_.returnFormats[0], value, u"FormatoRetornoData"); }
void Vela::FormatoRetornoData02(View value) { store(settings_.returnFormats[1], value, u"FormatoRetornoData02"); }
void Vela::FormatoRetornoData03(View value) { store(settings_.returnFormats[2], value, u"FormatoRetornoData03"); }
void Vela::FormatoRetornoData04(View value) { store(settings_.returnFormats[3], value, u"FormatoRetornoData04"); }
void Vela::IF_IsEmpty(View value) { store(settings_.ifIsEmpty, value, u"IF_IsEmpty"); }
void Vela::InserirZeros(bool value) { store(settings_.inserirZeros, value, u"InserirZeros"); }
void Vela::PromptChar(View value) { store(settings_.promptChar, value, u"PromptChar"); }
void Vela::SimboloMonetario(View value) { store(settings_.simboloMonetario, value, u"SimboloMonetario"); }
void Vela::tipoLetra(tipoTamanhoLetra value) { store(settings_.tipoLetra, value, u"tipoletra"); }
void Vela::ToolTipGotFocus(View value) { store(settings_.toolTipGotFocus, value, u"ToolTipGotFocus"); }
void Vela::ToolTipGotFocusTipo(eIconeToolTipText value) { store(settings_.toolTipGotFocusTipo, value, u"ToolTipGotFocusTipo"); }
void Vela::UpTAB(bool value) { store(settings_.upTab, value, u"UpTAB"); }

void Vela::Calendar_BackColor(Colour value) { storeColour(&popups::CalendarColours::back, value, u"Calendar_BackColor"); }
void Vela::Calendar_ColorWeekDay(Colour value) { storeColour(&popups::CalendarColours::weekDay, value, u"Calendar_ColorWeekDay"); }
void Vela::Calendar_ComboBackColor(Colour value) { storeColour(&popups::CalendarColours::combo, value, u"Calendar_ComboBackColor"); }
void Vela::Calendar_DayActive(Colour value) { storeColour(&popups::CalendarColours::dayActive, value, u"Calendar_DayActive"); }
void Vela::Calendar_DayInactive(Colour value) { storeColour(&popups::CalendarColours::dayInactive, value, u"Calendar_DayInactive"); }
void Vela::Calendar_FormBackcolor(Colour value) { storeColour(&popups::CalendarColours::form, value, u"Calendar_FormBackcolor"); }
void Vela::Calendar_Selected(Colour value) { storeColour(&popups::CalendarColours::selected, value, u"Calendar_Selected"); }
Vela::Colour Vela::Calendar_BackColor() const { return popups_.colours().read().back; }
Vela::Colour Vela::Calendar_ColorWeekDay() const { return popups_.colours().read().weekDay; }
Vela::Colour Vela::Calendar_ComboBackColor() const { return popups_.colours().read().combo; }
Vela::Colour Vela::Calendar_DayActive() const { return popups_.colours().read().dayActive; }
Vela::Colour Vela::Calendar_DayInactive() const { return popups_.colours().read().dayInactive; }
Vela::Colour Vela::Calendar_FormBackcolor() const { return popups_.colours().read().form; }
Vela::Colour Vela::Calendar_Selected() const { return popups_.colours().read().selected; }

// Not marked changed.
void Vela::CampoRequerido(bool value) { settings_.campoRequerido = value; }
void Vela::MsgRequerido(View value) { settings_.msgRequerido = value; }
void Vela::NomeCampo(View value) { settings_.nomeCampo = value; }
void Vela::TextoLivre(bool value) { settings_.textoLivre = value; }
// clang-format on

void Vela::storeColour(Colour popups::CalendarColours::*which, Colour value, View name)
{
    popups_.colours().put(which, value);
    markChanged(name);
}

} // namespace vela::control
