VERSION 5.00
Object = "{320E27E0-A91E-4A22-8CAB-3D96B34084B5}#1.0#0"; "Vela.ocx"
Begin VB.Form frmPedido
   Caption         =   "Pedido"
   ClientHeight    =   1890
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4200
   StartUpPosition =   2  'CenterScreen
   Begin VB.CommandButton cmdMostrar
      Caption         =   "&Mostrar"
      Height          =   375
      Left            =   2760
      TabIndex        =   2
      Top             =   1320
      Width           =   1215
   End
   Begin VelaLib.Vela Placa
      Height          =   315
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   1815
      Mask            =   "___-____"
      TextType        =   3
      MaskRules       =   "@@@-####"
      Alignment       =   2
   End
   Begin VelaLib.Vela Preco
      Height          =   315
      Left            =   240
      TabIndex        =   1
      Top             =   720
      Width           =   1815
      TextType        =   1
      SimbolDecExib   =   2
      SimbolDecRet    =   2
      SimbolAgrupMilhar=   1
      QtdCasasDec     =   2
      InserirZeros    =   -1  'True
      AutoSelect      =   -1  'True
      Alignment       =   1
   End
End
Attribute VB_Name = "frmPedido"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdMostrar_Click()
    MsgBox Placa.Value & vbCrLf & Preco.Value
End Sub

Private Sub Placa_KeyPress(KeyAscii As Integer)
    If KeyAscii = Asc("*") Then Placa.Text = ""
End Sub
