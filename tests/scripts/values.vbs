' Value as number, text, date and Empty on the four text types; the date of a calendar.
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
  If VarType(found) <> expected Then
    failures = failures + 1
    WScript.Echo what & ": type " & VarType(found) & " instead of " & expected
  End If
End Sub

Set c = CreateObject("Vela.Vela")
c.Value = 12.5
Same "number into free text", c.Text, "12,5"
c.Value = "texto"
Same "text into free text", c.Value, "texto"
c.Value = True
Same "truth value into free text", c.Text, "True"
c.Value = Empty
Same "Empty into free text", c.Text, ""

Set c = CreateObject("Vela.Vela")
c.TextType = 1
c.SimbolDecExib = 2
c.SimbolDecRet = 2
c.SimbolAgrupMilhar = 1
c.QtdCasasDec = 2
c.Value = 1234.5
Same "number into a number", c.Text, "1234,50"
Same "number back", c.Value, 1234.5
SameType "number back", c.Value, vbDouble
c.Text = "1234,5"
Same "text shown", c.Text, "1.234,5"
c.Value = "98,7"
Same "text into a number", c.Text, "98,70"
c.Value = CCur(3.25)
Same "currency into a number", c.Value, 3.25

Set c = CreateObject("Vela.Vela")
c.DateFormat = "dd/mm/yyyy"
c.FormatoExibData = "__/__/____"
c.FormatoRetornoData = "yyyy-mm-dd"
c.EsquemaRetornoAtual = 1
c.TextType = 2
c.Value = DateSerial(2024, 3, 15)
Same "date into a date", c.Text, "15/03/2024"
Same "date back", c.Value, "2024-03-15"
c.Value = Empty
Same "Empty into a date", c.Text, "__/__/____"
Same "Empty back", c.Value, "null"
On Error Resume Next
c.Value = "nunca"
Same "no date", Err.Number, 13
Err.Clear
On Error GoTo 0
Same "nothing written", c.Text, "__/__/____"

Set c = CreateObject("Vela.Vela")
c.Mask = "(__) ____"
c.TextType = 3
c.Value = "1123"
Same "mask shorter than its value", c.Text, "(11) 23"
c.Text = "11234567"
Same "mask", c.Text, "(11) 2345"
Same "mask back", c.Value, "112345"
c.Value = Empty
Same "Empty into a mask", c.Text, "(__) ____"
Same "Empty mask back", c.Value, "null"

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
