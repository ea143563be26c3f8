// What each member is for, in one sentence of the manual.
#include "apps/manual/descriptions.h"

#include <algorithm>
#include <iterator>

namespace vela::manual {

namespace {

struct Row {
    std::u16string_view name;
    std::string_view text;
};

constexpr Row rows[] = {
    {u"AceitaNegativos", "Whether a number may begin with \"-\"."},
    {u"Alignment", "Where the text stands in the box."},
    {u"Appearance", "Whether the box has its own sunken border (`c3D`) or the control draws the border (`cFlat`)."},
    {u"AutoSelect", "Whether the text is selected when the field is entered."},
    {u"AutoTAB", "Whether the focus moves on when the last place is filled."},
    {u"BackColor", "The box's background now; setting it sets `BackColorGotFocus` too."},
    {u"BackColor_MouseMove", "The background while the pointer is over the field."},
    {u"BackColorGotFocus", "The background while the field has the focus."},
    {u"BackColorLostFocus", "The background while it has not."},
    {u"BorderColor_MouseMove", "The border's colour while the pointer is over the field."},
    {u"BorderColorGotfocus", "The border's colour while the field has the focus."},
    {u"BorderColorLostfocus", "The border's colour while it has not."},
    {u"BorderStyle", "The line of the border; `XP` rounds the corners and takes no button."},
    {u"Calendar_BackColor", "The calendar's panel. The seven calendar colours are shared by the whole process."},
    {u"Calendar_ColorWeekDay", "The calendar's names of the weekdays."},
    {u"Calendar_ComboBackColor", "The background of the calendar's month and year lists."},
    {u"Calendar_DayActive", "The days of the month on show."},
    {u"Calendar_DayInactive", "The days of the months before and after."},
    {u"Calendar_FormBackcolor", "The calendar's edge."},
    {u"Calendar_Selected", "The circle of the selected day."},
    {u"CampoRequerido", "Marks a required field, for the application; the control does not act on it."},
    {u"CaractLiberados", "The characters that may be typed when `TextoLivre` is False."},
    {u"CorValorNeg", "The text colour of a number below zero once the field is left."},
    {u"CorValorPos", "The text colour of a number above zero once the field is left."},
    {u"DateFormat", "Which positions of a date field are day, month and year (or hour, minute, second), and how dates "
                    "are written into it."},
    {u"Delimitador", "The text around `Value` in the first return scheme."},
    {u"Delimitador02", "The same for the second."},
    {u"Delimitador03", "The same for the third."},
    {u"Delimitador04", "The same for the fourth."},
    {u"Enabled", "Whether the field can be used."},
    {u"EnterAsTab", "Whether Enter moves to the next field."},
    {u"Error_ForeColor", "The text colour of a wrong entry."},
    {u"ErrorAlert", "Whether a balloon tells of a wrong entry."},
    {u"ErrorFocus", "Whether the focus stays until the entry is right."},
    {u"ErrorMsgCustom", "Whether the balloon shows `ErrorTextMessage`."},
    {u"ErrorTextClear", "Whether a wrong entry is emptied."},
    {u"ErrorTextMessage", "Your own text for the balloon."},
    {u"Font", "The box's font, as an object."},
    {u"FontBold", "Bold."},
    {u"FontItalic", "Italic."},
    {u"FontName", "The font's name."},
    {u"FontSize", "The font's size in points, 0 to 255."},
    {u"FontStrikethru", "Struck through."},
    {u"FontUnderline", "Underlined."},
    {u"ForeColor_GotFocus", "The text colour while the field has the focus."},
    {u"ForeColor_LostFocus", "The text colour while it has not."},
    {u"FormatoExibData", "What an empty date field shows; copied into `Mask` when `TextType` becomes `Data`."},
    {u"FormatoRetornoData", "The date pattern of `Value` in the first return scheme."},
    {u"FormatoRetornoData02", "The same for the second."},
    {u"FormatoRetornoData03", "The same for the third."},
    {u"FormatoRetornoData04", "The same for the fourth."},
    {u"hwnd", "The window of the edit box."},
    {u"HwndCtl", "The window of the control."},
    {u"IF_IsEmpty", "The text that a field left empty takes."},
    {u"InserirZeros", "Whether the decimals are filled with zeros when the field is left."},
    {u"Locked", "Whether typing is refused; a mask's box is always locked, the mask writes the text itself."},
    {u"NomeCampo", "The field's name for people: the title of its tip, and what a reader program says."},
    {u"Mask", "The template of a mask field. Setting it sets `MaxLength` and empties the text; empty on a `Mascara` "
              "field: error 1001."},
    {u"MaskRules", "What each input position takes: `#` digit, `@` letter, `?` either; kept by `Mascara` fields only."},
    {u"MaskSomenteNumeros", "Kept and saved for `Data` and `Mascara` fields; nothing reads it."},
    {u"MaskToNumeric",
     "Whether a number is laid out with its decimals while it is typed; kept by `Numerico` fields only."},
    {u"MaxLength", "The most characters that may be typed, 0 for no limit."},
    {u"MsgRequerido", "A text for the application, beside `CampoRequerido`."},
    {u"MultLine", "Whether the box is multi-line; read-only at run time (error 1002)."},
    {u"nomeContainer", "The name of the form or frame that holds the control."},
    {u"PasswordChar", "The character shown in place of each typed one; at most one character."},
    {u"PromptChar", "The character that marks input positions in `Mask`."},
    {u"QtdCasasDec", "Decimal places, 0 to 255; 0 resets the three symbols and `InserirZeros`."},
    {u"SelLength", "How many characters are selected."},
    {u"SelStart", "The caret, 0 before the first character; setting it selects nothing."},
    {u"ShowButtonCalendario", "Whether the button that opens the calendar shows."},
    {u"ShowButtonCalculadora", "Whether the button that opens the calculator shows, and F2 opens it."},
    {u"SimbolAgrupMilhar", "The grouping symbol shown when the field is left."},
    {u"SimbolDecExib", "The decimal symbol that is typed and shown."},
    {u"SimbolDecRet", "The decimal symbol of the text from which `Value` is computed."},
    {u"SimboloMonetario",
     "The symbol put before the number when the field is left; \";\" divides what goes before from what goes behind."},
    {u"Text", "What the box shows. The default member."},
    {u"TextoLivre", "Whether any character may be typed."},
    {u"TextType", "What kind of data the field holds; switching clears the default value and the text."},
    {u"tipoLetra", "The letter case: as typed, capitals, small letters, or proper names when the field is left."},
    {u"ToolTipGotFocus", "The tip shown when the field is entered."},
    {u"ToolTipGotFocusTipo", "The tip's icon."},
    {u"UpTAB", "Whether the Down and Up arrows move to the next and the previous field."},
    {u"ValorPadrao", "The default content, or on a date field a formula: `%date`, `%hour`."},
    {u"Value", "The content as the application wants it; depends on `TextType` and the return scheme."},
    {u"EsquemaRetornoAtual", "Which return scheme is in force."},
    {u"About", "Shows the About box."},
    {u"DestruirToolTip", "Takes the field's tip away."},
    {u"LimparMemoria", "Lets go of the edit box; afterwards what needs it raises error 91."},
    {u"Change", "The text became another text."},
    {u"Click", "The field was clicked; a double click raises it once more."},
    {u"KeyPress", "A character was typed and filtered; put `KeyAscii` to 0 to refuse it, or to another character."},
    {u"KeyUp", "A key was released."},
    {u"KeyDown", "A key was pressed."},
    {u"MouseOut", "The pointer has left the field."},
};

} // namespace

std::string_view describe(std::u16string_view member) noexcept
{
    const auto* const found =
        std::find_if(std::begin(rows), std::end(rows), [&](const Row& row) { return row.name == member; });
    return found == std::end(rows) ? std::string_view{} : found->text;
}

} // namespace vela::manual
