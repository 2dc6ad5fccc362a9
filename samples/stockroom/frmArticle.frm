VERSION 5.00
Begin VB.Form frmArticle 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Article"
   ClientHeight    =   5475
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   5295
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   5475
   ScaleWidth      =   5295
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin VB.CommandButton cmdCancel 
      Cancel          =   -1  'True
      Caption         =   "Cancel"
      Height          =   375
      Left            =   3960
      TabIndex        =   19
      Top             =   4980
      Width           =   1215
   End
   Begin VB.CommandButton cmdOk 
      Caption         =   "OK"
      Default         =   -1  'True
      Height          =   375
      Left            =   2640
      TabIndex        =   18
      Top             =   4980
      Width           =   1215
   End
   Begin Stockroom.BinMap bmpBins 
      Height          =   1695
      Left            =   120
      TabIndex        =   17
      Top             =   3120
      Width           =   5055
      _ExtentX        =   8916
      _ExtentY        =   2990
   End
   Begin VB.TextBox txtRemarks 
      Height          =   735
      Left            =   1320
      MultiLine       =   -1  'True
      ScrollBars      =   2  'Vertical
      TabIndex        =   16
      Text            =   "frmArticle.frx":003B
      Top             =   2220
      Width           =   3855
   End
   Begin VB.Label lblRemarks 
      Caption         =   "&Remarks:"
      Height          =   255
      Left            =   120
      TabIndex        =   15
      Top             =   2250
      Width           =   1095
   End
   Begin VB.CheckBox chkOut 
      Caption         =   "Out of &sale"
      Height          =   255
      Left            =   3600
      TabIndex        =   14
      Top             =   1815
      Width           =   1575
   End
   Begin VB.ComboBox cmbSupplier 
      Height          =   315
      Left            =   3600
      Style           =   2  'Dropdown List
      TabIndex        =   13
      Top             =   1380
      Width           =   1575
   End
   Begin VB.Label lblSupplier 
      Caption         =   "Su&pplier:"
      Height          =   255
      Left            =   2880
      TabIndex        =   12
      Top             =   1410
      Width           =   735
   End
   Begin VB.ComboBox cmbUnit 
      Height          =   315
      ItemData        =   "frmArticle.frx":0000
      Left            =   3600
      List            =   "frmArticle.frx":0013
      Style           =   2  'Dropdown List
      TabIndex        =   11
      Top             =   960
      Width           =   1575
   End
   Begin VB.Label lblUnit 
      Caption         =   "&Unit:"
      Height          =   255
      Left            =   2880
      TabIndex        =   10
      Top             =   990
      Width           =   615
   End
   Begin VB.TextBox txtField 
      Height          =   285
      Index           =   4
      Left            =   1320
      MaxLength       =   10
      TabIndex        =   9
      Top             =   1800
      Width           =   1335
   End
   Begin VB.Label lblField 
      Caption         =   "&Bin:"
      Height          =   255
      Index           =   4
      Left            =   120
      TabIndex        =   8
      Top             =   1830
      Width           =   1095
   End
   Begin VB.TextBox txtField 
      Alignment       =   1  'Right Justify
      Height          =   285
      Index           =   3
      Left            =   1320
      TabIndex        =   7
      Top             =   1380
      Width           =   1335
   End
   Begin VB.Label lblField 
      Caption         =   "&Minimum:"
      Height          =   255
      Index           =   3
      Left            =   120
      TabIndex        =   6
      Top             =   1410
      Width           =   1095
   End
   Begin VB.TextBox txtField 
      Alignment       =   1  'Right Justify
      Height          =   285
      Index           =   2
      Left            =   1320
      TabIndex        =   5
      Top             =   960
      Width           =   1335
   End
   Begin VB.Label lblField 
      Caption         =   "&Price:"
      Height          =   255
      Index           =   2
      Left            =   120
      TabIndex        =   4
      Top             =   990
      Width           =   1095
   End
   Begin VB.TextBox txtField 
      Height          =   285
      Index           =   1
      Left            =   1320
      MaxLength       =   40
      TabIndex        =   3
      Top             =   540
      Width           =   3855
   End
   Begin VB.Label lblField 
      Caption         =   "N&ame:"
      Height          =   255
      Index           =   1
      Left            =   120
      TabIndex        =   2
      Top             =   570
      Width           =   1095
   End
   Begin VB.TextBox txtField 
      Height          =   285
      Index           =   0
      Left            =   1320
      MaxLength       =   10
      TabIndex        =   1
      Top             =   120
      Width           =   1335
   End
   Begin VB.Label lblField 
      Caption         =   "&Number:"
      Height          =   255
      Index           =   0
      Left            =   120
      TabIndex        =   0
      Top             =   150
      Width           =   1095
   End
End
Attribute VB_Name = "frmArticle"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Edits one article. The article is changed when OK is pressed, and not before.

Private mArticle As clsArticle
Private mOk As Boolean
Private mIsNew As Boolean

Public Function Edit(ByVal article As clsArticle, Optional ByVal isNew As Boolean) As Boolean
    Dim supplier As clsSupplier

    Set mArticle = article
    mIsNew = isNew
    mOk = False
    Load Me
    Caption = IIf(isNew, "New article", "Article " & article.Number)
    txtField(0).Text = article.Number
    txtField(0).Locked = Not isNew
    txtField(1).Text = article.Name
    txtField(2).Text = PriceText(article.Price)
    txtField(3).Text = CStr(article.Minimum)
    txtField(4).Text = article.Bin
    txtRemarks.Text = article.Remarks
    cmbUnit.ListIndex = article.Unit - 1
    chkOut.Value = IIf(article.OutOfSale, vbChecked, vbUnchecked)

    cmbSupplier.AddItem "(none)"
    cmbSupplier.ListIndex = 0
    For Each supplier In Store.Suppliers
        cmbSupplier.AddItem supplier.ShortName
        If Not article.Supplier Is Nothing Then
            If supplier Is article.Supplier Then cmbSupplier.ListIndex = cmbSupplier.NewIndex
        End If
    Next supplier

    bmpBins.Show article.Bin
    Me.Show vbModal, mdiMain
    Edit = mOk
    Unload Me
End Function

Private Sub bmpBins_BinClick(ByVal address As String)
    txtField(4).Text = address
End Sub

Private Sub cmdCancel_Click()
    Me.Hide
End Sub

Private Sub cmdOk_Click()
    Dim problem As String, badField As Integer

    problem = Check(badField)
    If Len(problem) > 0 Then
        MsgBox problem, vbExclamation, Caption
        txtField(badField).SetFocus
        Exit Sub
    End If
    On Error GoTo Refused
    With mArticle
        If mIsNew Then .Number = txtField(0).Text
        .Name = txtField(1).Text
        .Price = CCur(txtField(2).Text)
        .Minimum = CDbl(txtField(3).Text)
        .Bin = txtField(4).Text
        .Unit = cmbUnit.ItemData(cmbUnit.ListIndex)
        .Remarks = txtRemarks.Text
        .OutOfSale = (chkOut.Value = vbChecked)
        Set .Supplier = Store.FindSupplier(cmbSupplier.Text)
    End With
    mOk = True
    Me.Hide
    Exit Sub
Refused:
    MsgBox Err.Description, vbExclamation, Caption
End Sub

' The first thing that is wrong, and in which field; empty if all is well.
Private Function Check(ByRef badField As Integer) As String
    Dim address As BinAddress
    If mIsNew Then
        badField = 0
        If Not IsArticleNumber(UCase$(txtField(0).Text)) Then Check = "Please enter a number such as A-100.": Exit Function
        If Store.Articles.Exists(txtField(0).Text) Then Check = "This number is taken.": Exit Function
    End If
    badField = 1: If Len(Trim$(txtField(1).Text)) = 0 Then Check = "An article has a name.": Exit Function
    For badField = 2 To 3
        If Not IsNumeric(txtField(badField).Text) Then
            Check = "Please enter a number."
            Exit Function
        End If
    Next
    badField = 4
    If txtField(4).Text <> "" And txtField(4).Text <> "(none)" Then _
        If Not ParseBin(txtField(4).Text, address) Then Check = "There is no such bin."
End Function

Private Sub txtField_GotFocus(Index As Integer)
    txtField(Index).SelStart = 0
    txtField(Index).SelLength = Len(txtField(Index).Text)
End Sub

Private Sub txtField_KeyPress(Index As Integer, KeyAscii As Integer)
    Select Case Index
        Case 0, 4
            KeyAscii = Asc(UCase$(Chr$(KeyAscii)))
        Case 2, 3
            If KeyAscii >= 32 And InStr("0123456789.,-", Chr$(KeyAscii)) = 0 Then KeyAscii = 0
    End Select
End Sub

Private Sub txtField_Validate(Index As Integer, Cancel As Boolean)
    If Index = 4 Then bmpBins.Show txtField(4).Text
End Sub
