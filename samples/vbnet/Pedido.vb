' A Windows Forms host of Vela, late bound: no wrapper assembly is needed.
' build.cmd compiles it with the framework's own compiler for the bitness whose Vela.ocx is registered.
Imports System
Imports System.Windows.Forms

Class VelaBox
    Inherits AxHost
    Public Sub New()
        MyBase.New("77678695-52FF-4469-9181-A2CD883F9379")
    End Sub
End Class

Class PedidoForm
    Inherits Form
    Private ReadOnly caixa As New VelaBox()
    Private WithEvents mostrar As New Button()
    Private preco As Object

    Public Sub New()
        Text = "Pedido"
        caixa.SetBounds(16, 16, 140, 23)
        mostrar.SetBounds(16, 60, 90, 25)
        mostrar.Text = "&Mostrar"
        Controls.Add(caixa)
        Controls.Add(mostrar)
    End Sub

    Protected Overrides Sub OnLoad(e As EventArgs)
        MyBase.OnLoad(e)
        preco = caixa.GetOcx()
        preco.TextType = 1          ' Numerico
        preco.SimbolDecExib = 2     ' Virgula
        preco.SimbolDecRet = 2
        preco.SimbolAgrupMilhar = 1 ' Ponto
        preco.QtdCasasDec = 2
        preco.InserirZeros = True
    End Sub

    Private Sub mostrar_Click(sender As Object, e As EventArgs) Handles mostrar.Click
        MessageBox.Show(CStr(preco.Value))
    End Sub

    <STAThread>
    Public Shared Sub Main()
        Application.Run(New PedidoForm())
    End Sub
End Class
