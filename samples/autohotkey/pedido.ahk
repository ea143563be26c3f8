; AutoHotkey v2 (the bitness whose Vela.ocx is registered): a licence plate in a window.
#Requires AutoHotkey v2.0
janela := Gui(, "Pedido")
campo := janela.Add("ActiveX", "w160 h23", "Vela.Vela")
placa := campo.Value
placa.Mask := "___-____"          ; first the mask, then the type, then the rules
placa.TextType := 3               ; Mascara
placa.MaskRules := "@@@-####"
ComObjConnect(placa, "placa_")
mostrar := janela.Add("Button", "Default", "&Mostrar")
mostrar.OnEvent("Click", (*) => MsgBox(placa.Value))
janela.OnEvent("Close", (*) => ExitApp())
janela.Show()

placa_Change(*) {
    ToolTip(placa.Text)
}
