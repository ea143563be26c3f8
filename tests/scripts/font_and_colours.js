// The font object, the shared calendar colours and errors from JScript.
var failures = 0;
function same(what, found, expected) {
  if (String(found) !== String(expected)) {
    failures++;
    WScript.Echo(what + ": " + found + " instead of " + expected);
  }
}
function number(call) {
  try { call(); } catch (error) { return error.number & 0xFFFF; }
  return 0;
}

var field = new ActiveXObject("Vela.Vela.1");
var other = new ActiveXObject("Vela.Vela");
field.Font.Bold = true;
same("bold through the font object", field.FontBold, true);
field.FontItalic = true;
same("italic through the property", field.Font.Italic, true);
same("the other control's font", other.FontBold, false);

other.Calendar_Selected = 0x00FF00;
same("calendar colours are shared", field.Calendar_Selected, 0x00FF00);

field.Text = "a\u00E7\u00E3o";
same("text", field.Text, "a\u00E7\u00E3o");
same("read by call", field.Text.length, 4);
same("error number", number(function () { field.PasswordChar = "ab"; }), 380);
same("type mismatch", number(function () { field.QtdCasasDec = "x"; }), 13);
same("window", field.hwnd !== 0 && field.HwndCtl !== 0, true);
field.DestruirToolTip();

if (failures === 0) WScript.Echo("passed");
WScript.Quit(failures);
