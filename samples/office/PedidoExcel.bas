Attribute VB_Name = "PedidoExcel"
' Excel: File > Import File in the VBA editor, then run NovoPedido. It puts a date field on the active sheet.
Option Explicit

Public Sub NovoPedido()
    Dim campo As OLEObject
    Set campo = ActiveSheet.OLEObjects.Add(ClassType:="Vela.Vela.1", Left:=20, Top:=20, Width:=110, Height:=18)
    campo.Name = "Entrega"
    With campo.Object
        .DateFormat = "dd/mm/yyyy"
        .TextType = 2                       ' Data
        .ShowButtonCalendario = True
        .FormatoRetornoData = "yyyy-mm-dd"
        .EsquemaRetornoAtual = 1
    End With
End Sub

Public Sub MostraEntrega()
    MsgBox ActiveSheet.OLEObjects("Entrega").Object.Value
End Sub
