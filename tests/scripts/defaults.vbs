' The defaults of a new instance, properties by name, and errors, as a script meets them.
Option Explicit
Dim c, failures
failures = 0

Sub Same(what, found, expected)
  If CStr(found) <> CStr(expected) Then
    failures = failures + 1
    WScript.Echo what & ": " & CStr(found) & " instead of " & CStr(expected)
  End If
End Sub

Sub SameError(what, number, source, description)
  Same what & ", number", Err.Number, number
  If source <> "" Then Same what & ", source", Err.Source, source
  If description <> "" Then Same what & ", description", Err.Description, description
  Err.Clear
End Sub

Set c = CreateObject("Vela.Vela")
Same "AutoSelect", c.AutoSelect, True
Same "InserirZeros", c.InserirZeros, False
Same "UpTAB", c.UpTAB, True
Same "TextoLivre", c.TextoLivre, True
Same "PromptChar", c.PromptChar, "_"
Same "FormatoExibData", c.FormatoExibData, "__/__/____"
Same "DateFormat", c.DateFormat, ""
Same "TextType", c.TextType, 0
Same "Appearance", c.Appearance, 1
Same "EsquemaRetornoAtual", c.EsquemaRetornoAtual, 1
Same "BackColor_MouseMove", Hex(c.BackColor_MouseMove), "FEF7E9"
Same "BorderColor_MouseMove", Hex(c.BorderColor_MouseMove), "C000"
Same "Calendar_Selected", Hex(c.Calendar_Selected), "C0E0FF"
Same "Error_ForeColor", c.Error_ForeColor, 255
Same "nomeContainer", c.nomeContainer, ""
Same "Value", c.Value, ""

c.Text = "ação"
Same "default member", c, "ação"
Same "any case", c.TEXT, "ação"
c.Delimitador = "#"
c.EsquemaRetornoAtual = 1
Same "Value in scheme 1", c.Value, "#ação#"
c.EsquemaRetornoAtual = 7
Same "EsquemaRetornoAtual unchecked", c.EsquemaRetornoAtual, 7
c.BackColor = &H0000FFFF&
Same "BackColorGotFocus follows", Hex(c.BackColorGotFocus), "FFFF"

c.Mask = "__-__"
Same "MaxLength follows Mask", c.MaxLength, 5
c.TextType = 3
On Error Resume Next
c.Mask = ""
SameError "empty mask", 1001, "Vela", "Mascara não pode ser vazia"
Same "mask kept", c.Mask, "__-__"
c.MultLine = True
SameError "MultLine", 1002, "Vela", "Propriedade é Read-Only"
Same "MultLine stored", c.MultLine, True
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

If failures = 0 Then WScript.Echo "passed"
WScript.Quit failures
