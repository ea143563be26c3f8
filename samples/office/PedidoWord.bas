Attribute VB_Name = "PedidoWord"
' Word: File > Import File in the VBA editor, then run NovoPedido. It puts a date field where the cursor is.
Option Explicit

Public Sub NovoPedido()
    Dim forma As InlineShape
    Set forma = ActiveDocument.InlineShapes.AddOLEControl("Vela.Vela.1", Selection.Range)
    With forma.OLEFormat.Object
        .DateFormat = "dd/mm/yyyy"
        .TextType = 2                       ' Data
        .ShowButtonCalendario = True
        .FormatoRetornoData = "yyyy-mm-dd"
        .EsquemaRetornoAtual = 1
    End With
End Sub

Public Sub MostraEntrega()
    MsgBox ActiveDocument.InlineShapes(1).OLEFormat.Object.Value
End Sub
