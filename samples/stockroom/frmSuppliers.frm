VERSION 5.00
Begin VB.Form frmSuppliers 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Suppliers"
   ClientHeight    =   3435
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   6375
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MDIChild        =   -1  'True
   ScaleHeight     =   3435
   ScaleWidth      =   6375
   Begin VB.CommandButton cmdSave 
      Caption         =   "&Save"
      Enabled         =   0   'False
      Height          =   375
      Left            =   5040
      TabIndex        =   14
      Top             =   2925
      Width           =   1215
   End
   Begin VB.CommandButton cmdAdd 
      Caption         =   "&Add..."
      Height          =   375
      Left            =   3720
      TabIndex        =   13
      Top             =   2925
      Width           =   1215
   End
   Begin VB.Label lblArticles 
      Height          =   255
      Left            =   3120
      TabIndex        =   12
      Top             =   2280
      Width           =   3135
   End
   Begin VB.Label lblDays 
      Caption         =   "0 days"
      Height          =   255
      Left            =   5280
      TabIndex        =   11
      Top             =   1860
      Width           =   975
   End
   Begin VB.HScrollBar hsbDays 
      Height          =   255
      LargeChange     =   7
      Left            =   3120
      Max             =   60
      TabIndex        =   10
      Top             =   1830
      Width           =   2055
   End
   Begin VB.Label lblDaysCaption 
      Caption         =   "&Delivery:"
      Height          =   255
      Left            =   2280
      TabIndex        =   9
      Top             =   1860
      Width           =   735
   End
   Begin VB.TextBox txtLine 
      Height          =   285
      Index           =   3
      Left            =   3120
      TabIndex        =   8
      Top             =   1380
      Width           =   3135
   End
   Begin VB.Label lblLine 
      Caption         =   "&Phone:"
      Height          =   255
      Index           =   3
      Left            =   2280
      TabIndex        =   7
      Top             =   1410
      Width           =   735
   End
   Begin VB.TextBox txtLine 
      Height          =   285
      Index           =   2
      Left            =   3120
      TabIndex        =   6
      Top             =   960
      Width           =   3135
   End
   Begin VB.Label lblLine 
      Caption         =   "T&own:"
      Height          =   255
      Index           =   2
      Left            =   2280
      TabIndex        =   5
      Top             =   990
      Width           =   735
   End
   Begin VB.TextBox txtLine 
      Height          =   285
      Index           =   1
      Left            =   3120
      TabIndex        =   4
      Top             =   540
      Width           =   3135
   End
   Begin VB.Label lblLine 
      Caption         =   "S&treet:"
      Height          =   255
      Index           =   1
      Left            =   2280
      TabIndex        =   3
      Top             =   570
      Width           =   735
   End
   Begin VB.TextBox txtLine 
      Height          =   285
      Index           =   0
      Left            =   3120
      TabIndex        =   2
      Top             =   120
      Width           =   3135
   End
   Begin VB.Label lblLine 
      Caption         =   "&Name:"
      Height          =   255
      Index           =   0
      Left            =   2280
      TabIndex        =   1
      Top             =   150
      Width           =   735
   End
   Begin VB.ListBox lstSuppliers 
      Height          =   3180
      Left            =   120
      Sorted          =   -1  'True
      TabIndex        =   0
      Top             =   120
      Width           =   1935
   End
End
Attribute VB_Name = "frmSuppliers"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private mSupplier As clsSupplier
Private mChanged As Boolean

Private Sub cmdAdd_Click()
    Dim key As String, supplier As clsSupplier
    key = UCase$(Trim$(InputBox("Short name of the supplier:", "New supplier")))
    If key = "" Then Exit Sub
    If Not Store.FindSupplier(key) Is Nothing Then MsgBox key & " is there already.": Exit Sub
    Set supplier = New clsSupplier
    supplier.ShortName = key
    Store.Suppliers.Add supplier, key
    lstSuppliers.AddItem key
    lstSuppliers.ListIndex = lstSuppliers.NewIndex
End Sub

Private Sub cmdSave_Click()
    TakeOver
End Sub

Private Sub Form_Load()
    Dim supplier As clsSupplier
    For Each supplier In Store.Suppliers
        lstSuppliers.AddItem supplier.ShortName
    Next
    If lstSuppliers.ListCount > 0 Then lstSuppliers.ListIndex = 0
End Sub

Private Sub Form_QueryUnload(Cancel As Integer, UnloadMode As Integer)
    If mChanged Then
        If Confirm("Keep the changes to " & mSupplier.ShortName & "?", True) Then TakeOver
    End If
End Sub

Private Sub lstSuppliers_Click()
    If mChanged Then TakeOver
    Set mSupplier = Store.FindSupplier(lstSuppliers.Text)
    If mSupplier Is Nothing Then Exit Sub
    With mSupplier
        txtLine(0).Text = .FullName
        txtLine(1).Text = .Street
        txtLine(2).Text = .Town
        txtLine(3).Text = .Phone
        hsbDays.Value = .DeliveryDays
        lblArticles.Caption = .ArticleCount & " articles"
    End With
    mChanged = False
    cmdSave.Enabled = False
End Sub

Private Sub hsbDays_Change()
    lblDays.Caption = hsbDays.Value & " days"
    mChanged = True
    cmdSave.Enabled = True
End Sub

Private Sub hsbDays_Scroll()
    hsbDays_Change
End Sub

Private Sub txtLine_Change(Index As Integer)
    mChanged = True
    cmdSave.Enabled = True
End Sub

Private Sub TakeOver()
    If mSupplier Is Nothing Then Exit Sub
    With mSupplier
        .FullName = txtLine(0).Text
        .Street = txtLine(1).Text
        .Town = txtLine(2).Text
        .Phone = txtLine(3).Text
        .DeliveryDays = hsbDays.Value
    End With
    mChanged = False
    cmdSave.Enabled = False
End Sub
