' The calendar as a control of its own.
Option Explicit
Dim calendar, failures
failures = 0

Sub Same(what, found, expected)
  If found <> expected Then
    failures = failures + 1
    WScript.Echo what & ": " & CStr(found) & " instead of " & CStr(expected)
  End If
End Sub

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
