' Properties by name, values in a script's own types, errors, and the calendar, as a script meets them.
Option Explicit
Dim c, calendar, failures
failures = 0

Sub Same(what, found, expected)
  If CStr(found) <> CStr(expected) Then
    failures = failures + 1
    WScript.Echo what & ": " & CStr(found) & " instead of " & CStr(expected)
  End If
End Sub

Sub SameType(what, found, expected)
  Same what & ", type", VarType(found), expected
End Sub

Sub SameError(what, number, source, description)
  Same what & ", number", Err.Number, number
  If source <> "" Then Same what & ", source", Err.Source, source
  If description <> "" Then Same what & ", description", Err.Description, description
  Err.Clear
End Sub

Set c = CreateObject("Vela.Vela")
Same "AutoSelect", c.AutoSelect, True
Same "PromptChar", c.PromptChar, "_"
Same "BackColor_MouseMove", Hex(c.BackColor_MouseMove), "FEF7E9"

c.Text = "ação"
Same "default member", c, "ação"
Same "any case", c.TEXT, "ação"
c.Delimitador = "#"
c.EsquemaRetornoAtual = 1
Same "Value in scheme 1", c.Value, "#ação#"

c.Mask = "__-__"
c.TextType = 3
On Error Resume Next
c.Mask = ""
SameError "empty mask", 1001, "Vela", "Mascara não pode ser vazia"
c.MultLine = True
SameError "MultLine", 1002, "Vela", "Propriedade é Read-Only"
c.PasswordChar = "ab"
SameError "PasswordChar", 380, "Vela", "Invalid property value"
c.SelStart = -1
SameError "SelStart", 380, "Vela", "Invalid property value"
c.QtdCasasDec = 256
SameError "QtdCasasDec", 6, "Vela", "Overflow"
c.AutoSelect = "talvez"
SameError "AutoSelect", 13, "Vela", "Type mismatch"
c.Inexistente = 1
SameError "unknown property", 438, "", ""
c.hwnd = 1
SameError "read-only property", 438, "", ""
c.Text = Null
SameError "Null", 13, "Vela", "Type mismatch"
c.LimparMemoria
SameError "LimparMemoria", 0, "", ""
c.Text = "x"
SameError "after LimparMemoria", 91, "Vela", "Object variable or With block variable not set"
On Error GoTo 0

Set c = CreateObject("Vela.Vela")
c.TextType = 1
c.SimbolDecExib = 2
c.SimbolDecRet = 2
c.QtdCasasDec = 2
c.Value = CCur(3.25)
Same "currency into a number", c.Value, 3.25
SameType "number back", c.Value, vbDouble
c.TextType = 2
c.DateFormat = "dd/mm/yyyy"
c.FormatoRetornoData = "yyyy-mm-dd"
c.EsquemaRetornoAtual = 1
c.Value = DateSerial(2024, 3, 15)
Same "date into a date", c.Text, "15/03/2024"
Same "date back", c.Value, "2024-03-15"
SameType "date back", c.Value, vbString
c.Value = Empty
Same "Empty back", c.Value, "null"

' The calendar as a control of its own
Set calendar = CreateObject("Vela.cCalendar")
Same "a new one shows today", calendar.DateInitial, Date
calendar.IniciaCalendario DateSerial(2024, 2, 29)
Same "a date", calendar.DateInitial, DateSerial(2024, 2, 29)
calendar.IniciaCalendario "15/03/2024"
Same "a text that is a date", calendar, DateSerial(2024, 3, 15)
calendar.IniciaCalendario "nunca"
Same "a text that is none: today", calendar.DateInitial, Date
Same "highlights give nothing back", VarType(calendar.IncluiDataRealcada(Date)), vbEmpty
On Error Resume Next
calendar.DateInitial = Date
Same "read-only", Err.Number, 438
On Error GoTo 0

If failures = 0 Then WScript.Echo "passed"
WScript.Quit failures
