VERSION 5.00
Begin VB.Form frmTill 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Till"
   ClientHeight    =   2655
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   3855
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   ScaleHeight     =   2655
   ScaleWidth      =   3855
   StartUpPosition =   3  'Windows Default
   Begin VB.ListBox lstItems 
      Height          =   1230
      Left            =   120
      TabIndex        =   4
      Top             =   1320
      Width           =   1815
   End
   Begin VB.CommandButton cmdTotal 
      Caption         =   "&Total"
      Height          =   375
      Left            =   2040
      TabIndex        =   3
      Top             =   1320
      Width           =   1695
   End
   Begin VB.CommandButton cmdAdd 
      Caption         =   "&Add"
      Default         =   -1  'True
      Height          =   375
      Left            =   2040
      TabIndex        =   2
      Top             =   810
      Width           =   1695
   End
   Begin VB.TextBox txtPrice 
      Alignment       =   1  'Right Justify
      Height          =   285
      Left            =   120
      TabIndex        =   1
      Top             =   840
      Width           =   1815
   End
   Begin VB.Label lblSum 
      Alignment       =   1  'Right Justify
      BorderStyle     =   1  'Fixed Single
      Caption         =   "0.00"
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   18
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   495
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   3615
   End
End
Attribute VB_Name = "frmTill"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private mSum As Currency

Private Sub cmdAdd_Click()
    Dim price As Currency
    If ParsePrice(txtPrice.Text, price) Then
        mSum = mSum + price
        lstItems.AddItem PriceText(price)
        lblSum.Caption = PriceText(mSum)
        txtPrice.Text = ""
    Else
        Beep
    End If
    txtPrice.SetFocus
End Sub

Private Sub cmdTotal_Click()
    MsgBox "To pay: " & PriceText(RoundToFive(mSum)), vbInformation, "Till"
    lstItems.Clear
    mSum = 0
    lblSum.Caption = PriceText(mSum)
End Sub
