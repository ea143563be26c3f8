' Value in a script's own types; the date of a calendar.
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
