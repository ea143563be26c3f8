' A number field and a mask, worked from a script: cscript //nologo pedido.vbs
Option Explicit

Dim preco, placa
Set preco = CreateObject("Vela.Vela")
preco.TextType = 1            ' Numerico
preco.SimbolDecExib = 2       ' Virgula
preco.SimbolDecRet = 2
preco.SimbolAgrupMilhar = 1   ' Ponto
preco.QtdCasasDec = 2
preco.InserirZeros = True
preco.Value = 1234.5
WScript.Echo "Text:  " & preco.Text
WScript.Echo "Value: " & preco.Value

Set placa = CreateObject("Vela.Vela")
placa.Mask = "___-____"
placa.TextType = 3            ' Mascara: the mask comes before, the rules after
placa.MaskRules = "@@@-####"
placa.Value = "ABC1234"
WScript.Echo "Text:  " & placa.Text
WScript.Echo "Value: " & placa.Value

' Errors carry their number, source and description.
On Error Resume Next
placa.Mask = ""
WScript.Echo Err.Number & " " & Err.Source & ": " & Err.Description
On Error GoTo 0
WScript.Echo "passed"
