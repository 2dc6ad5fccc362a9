VERSION 5.00
Begin VB.Form frmMovements 
   Caption         =   "Movements"
   ClientHeight    =   5055
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7575
   LinkTopic       =   "Form1"
   MDIChild        =   -1  'True
   ScaleHeight     =   5055
   ScaleWidth      =   7575
   Begin VB.ListBox lstMovements 
      Height          =   2985
      Left            =   120
      TabIndex        =   14
      Top             =   1920
      Width           =   7335
   End
   Begin VB.Line linRule 
      BorderColor     =   &H80000010&
      X1              =   120
      X2              =   7455
      Y1              =   1785
      Y2              =   1785
   End
   Begin VB.ListBox lstKinds 
      Height          =   960
      ItemData        =   "frmMovements.frx":0000
      Left            =   5400
      List            =   "frmMovements.frx":0010
      Style           =   1  'Checkbox
      TabIndex        =   13
      Top             =   120
      Width           =   2055
   End
   Begin VB.CommandButton cmdBook 
      Caption         =   "Boo&k"
      Default         =   -1  'True
      Enabled         =   0   'False
      Height          =   375
      Left            =   5400
      TabIndex        =   12
      Top             =   1275
      Width           =   2055
   End
   Begin VB.TextBox txtToBin 
      BackColor       =   &H8000000F&
      Enabled         =   0   'False
      Height          =   285
      Left            =   3120
      MaxLength       =   7
      TabIndex        =   11
      Top             =   1320
      Width           =   1095
   End
   Begin VB.Label lblToBin 
      Caption         =   "to &bin:"
      Height          =   255
      Left            =   2400
      TabIndex        =   10
      Top             =   1350
      Width           =   615
   End
   Begin VB.TextBox txtAmount 
      Alignment       =   1  'Right Justify
      Height          =   285
      Left            =   960
      TabIndex        =   9
      Top             =   1320
      Width           =   1335
   End
   Begin VB.Label lblAmount 
      Caption         =   "A&mount:"
      Height          =   255
      Left            =   120
      TabIndex        =   8
      Top             =   1350
      Width           =   735
   End
   Begin VB.Frame fraKind 
      Caption         =   "Kind"
      Height          =   735
      Left            =   120
      TabIndex        =   3
      Top             =   480
      Width           =   5175
      Begin VB.OptionButton optKind 
         Caption         =   "&Correction"
         Height          =   255
         Index           =   3
         Left            =   3900
         TabIndex        =   7
         Top             =   300
         Width           =   1215
      End
      Begin VB.OptionButton optKind 
         Caption         =   "&Transfer"
         Height          =   255
         Index           =   2
         Left            =   2640
         TabIndex        =   6
         Top             =   300
         Width           =   1215
      End
      Begin VB.OptionButton optKind 
         Caption         =   "&Issue"
         Height          =   255
         Index           =   1
         Left            =   1380
         TabIndex        =   5
         Top             =   300
         Width           =   1215
      End
      Begin VB.OptionButton optKind 
         Caption         =   "&Receipt"
         Height          =   255
         Index           =   0
         Left            =   120
         TabIndex        =   4
         Top             =   300
         Value           =   -1  'True
         Width           =   1215
      End
   End
   Begin VB.Label lblName 
      Height          =   255
      Left            =   2400
      TabIndex        =   2
      Top             =   150
      UseMnemonic     =   0   'False
      Width           =   5055
   End
   Begin VB.TextBox txtArticle 
      Height          =   285
      Left            =   960
      MaxLength       =   10
      TabIndex        =   1
      Top             =   120
      Width           =   1335
   End
   Begin VB.Label lblArticle 
      Caption         =   "&Article:"
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   150
      Width           =   735
   End
End
Attribute VB_Name = "frmMovements"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private mArticle As clsArticle

Public Sub BookArticle(ByVal article As clsArticle)
    Set mArticle = article
    ShowChild Me
    txtArticle.Text = article.Number
    txtAmount.SetFocus
End Sub

Private Sub cmdBook_Click()
    Dim kind As MovementKind, i As Integer

    On Error GoTo NotBooked
    If mArticle Is Nothing Then Err.Raise vbObjectError + 540, , "There is no such article."
    For i = optKind.LBound To optKind.UBound
        If optKind(i).Value Then kind = i + 1
    Next i
    Store.Book mArticle, kind, CDbl(txtAmount.Text), txtToBin.Text
    txtAmount.Text = ""
    FillMovements
    Exit Sub

NotBooked:
    If Err.Number = 13 Then
        MsgBox "'" & txtAmount.Text & "' is no amount.", vbExclamation, APP_TITLE
    Else
        MsgBox Err.Description, vbExclamation, APP_TITLE
    End If
End Sub

Private Sub Form_Load()
    FillMovements
End Sub

Private Sub lstKinds_ItemCheck(Item As Integer)
    FillMovements
End Sub

Private Sub optKind_Click(Index As Integer)
    txtToBin.Enabled = (Index = mkTransfer - 1)
    txtToBin.BackColor = IIf(txtToBin.Enabled, vbWindowBackground, vbButtonFace)
End Sub

Private Sub txtArticle_Change()
    If Store.Articles.Exists(txtArticle.Text) Then
        Set mArticle = Store.Articles(UCase$(txtArticle.Text))
        lblName.Caption = mArticle.Name
    Else
        Set mArticle = Nothing
        lblName.Caption = ""
    End If
    cmdBook.Enabled = Not mArticle Is Nothing
End Sub

' The latest movements first, no more than a thousand.
Private Sub FillMovements()
    Dim i As Long, shown As Long, movement As clsMovement

    lstMovements.Clear
    i = Store.Movements.Count
    Do While i > 0 And shown < 1000
        Set movement = Store.Movements(i)
        If lstKinds.Selected(movement.Kind - 1) Then
            lstMovements.AddItem movement.Text & "  (" & movement.User & ")"
            shown = shown + 1
        End If
        i = i - 1
    Loop
End Sub
