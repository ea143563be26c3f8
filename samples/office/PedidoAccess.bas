' Access: put a Vela control named Entrega and a button named Mostrar on a form, then paste this into the form's module.
Option Explicit

Private Sub Form_Load()
    With Me.Entrega.Object
        .DateFormat = "dd/mm/yyyy"
        .TextType = 2                       ' Data
        .ShowButtonCalendario = True
        .FormatoRetornoData = "yyyy-mm-dd"
        .EsquemaRetornoAtual = 1
    End With
End Sub

Private Sub Mostrar_Click()
    MsgBox Me.Entrega.Object.Value
End Sub
