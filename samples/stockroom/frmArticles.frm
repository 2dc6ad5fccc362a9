VERSION 5.00
Begin VB.Form frmArticles 
   Caption         =   "Articles"
   ClientHeight    =   5775
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   8775
   KeyPreview      =   -1  'True
   LinkTopic       =   "Form1"
   MDIChild        =   -1  'True
   ScaleHeight     =   5775
   ScaleWidth      =   8775
   Begin VB.Timer tmrSearch 
      Enabled         =   0   'False
      Interval        =   300
      Left            =   8160
      Top             =   480
   End
   Begin VB.Frame fraActions 
      BorderStyle     =   0  'None
      Height          =   975
      Left            =   120
      TabIndex        =   10
      Top             =   4680
      Width           =   8535
      Begin VB.CommandButton cmdAction 
         Caption         =   "&Order"
         Height          =   375
         Index           =   3
         Left            =   7560
         TabIndex        =   15
         ToolTipText     =   "Order everything that is below its minimum"
         Top             =   330
         Width           =   855
      End
      Begin VB.CommandButton cmdAction 
         Caption         =   "&Book..."
         Enabled         =   0   'False
         Height          =   375
         Index           =   2
         Left            =   6600
         TabIndex        =   14
         Top             =   330
         Width           =   855
      End
      Begin VB.CommandButton cmdAction 
         Caption         =   "&Edit..."
         Enabled         =   0   'False
         Height          =   375
         Index           =   1
         Left            =   5640
         TabIndex        =   13
         Top             =   330
         Width           =   855
      End
      Begin VB.CommandButton cmdAction 
         Caption         =   "Ne&w..."
         Height          =   375
         Index           =   0
         Left            =   4680
         TabIndex        =   12
         Top             =   330
         Width           =   855
      End
      Begin VB.Label lblDetails 
         Height          =   615
         Left            =   120
         TabIndex        =   11
         Top             =   240
         UseMnemonic     =   0   'False
         Width           =   4455
      End
   End
   Begin VB.Frame fraSort 
      Height          =   495
      Left            =   120
      TabIndex        =   6
      Top             =   435
      Width           =   4215
      Begin VB.OptionButton optSort 
         Caption         =   "by val&ue"
         Height          =   255
         Index           =   2
         Left            =   2760
         TabIndex        =   9
         Top             =   180
         Width           =   1215
      End
      Begin VB.OptionButton optSort 
         Caption         =   "by n&ame"
         Height          =   255
         Index           =   1
         Left            =   1440
         TabIndex        =   8
         Top             =   180
         Width           =   1215
      End
      Begin VB.OptionButton optSort 
         Caption         =   "by &number"
         Height          =   255
         Index           =   0
         Left            =   120
         TabIndex        =   7
         Top             =   180
         Value           =   -1  'True
         Width           =   1215
      End
   End
   Begin VB.ListBox lstArticles 
      BeginProperty Font 
         Name            =   "Courier New"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   3660
      Left            =   120
      TabIndex        =   5
      Top             =   960
      Width           =   8535
   End
   Begin VB.Label lblCount 
      Alignment       =   1  'Right Justify
      Height          =   255
      Left            =   6720
      TabIndex        =   4
      Top             =   150
      Width           =   1935
   End
   Begin VB.TextBox txtSearch 
      Height          =   285
      Left            =   4320
      TabIndex        =   3
      Top             =   120
      Width           =   2295
   End
   Begin VB.Label lblSearch 
      Caption         =   "&Search:"
      Height          =   255
      Left            =   3600
      TabIndex        =   2
      Top             =   150
      Width           =   735
   End
   Begin VB.ComboBox cmbView 
      Height          =   315
      ItemData        =   "frmArticles.frx":0000
      Left            =   720
      List            =   "frmArticles.frx":0013
      Style           =   2  'Dropdown List
      TabIndex        =   1
      Top             =   120
      Width           =   2655
   End
   Begin VB.Label lblView 
      Caption         =   "&View:"
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   150
      Width           =   615
   End
   Begin VB.Menu mnuPopup 
      Caption         =   "Popup"
      Visible         =   0   'False
      Begin VB.Menu mnuPopupEdit 
         Caption         =   "&Edit..."
      End
      Begin VB.Menu mnuPopupBar1 
         Caption         =   "-"
      End
      Begin VB.Menu mnuPopupRemove 
         Caption         =   "&Remove"
         Shortcut        =   {DEL}
      End
   End
End
Attribute VB_Name = "frmArticles"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Const VIEW_ALL = 0, VIEW_BELOW = 1, VIEW_OLD = 2, VIEW_NO_BIN = 3, VIEW_OUT = 4

Private WithEvents mStore As clsStore
Attribute mStore.VB_VarHelpID = -1
Private mFilling As Boolean
Private mShown() As clsArticle
Private mShownCount As Long

Private Sub cmdAction_Click(Index As Integer)
    Select Case Index
        Case 0          ' new
            Dim fresh As clsArticle
            Set fresh = New clsArticle
            fresh.Number = Store.Articles.NextNumber("A")
            If frmArticle.Edit(fresh, True) Then Store.AddArticle fresh
        Case 1          ' edit
            EditCurrent
        Case 2          ' book
            If Not Current Is Nothing Then frmMovements.BookArticle Current
        Case 3
            OrderMissing
    End Select
End Sub

Private Sub cmbView_Click()
    If Not mFilling Then FillList
End Sub

Private Sub Form_Activate()
    FillList
End Sub

Private Sub Form_Load()
    Set mStore = Store
    mFilling = True
    cmbView.ListIndex = GetSetting(APP_TITLE, "Articles", "View", 0)
    optSort(Val(GetSetting(APP_TITLE, "Articles", "Sort", "0"))).Value = True
    mFilling = False
End Sub

Private Sub Form_Resize()
    If WindowState = vbMinimized Then Exit Sub
    On Error Resume Next            ' a window may be smaller than its controls
    lstArticles.Width = ScaleWidth - lstArticles.Left * 2
    lstArticles.Height = ScaleHeight - lstArticles.Top - fraActions.Height - 240
    fraActions.Top = lstArticles.Top + lstArticles.Height + 60
End Sub

Private Sub Form_Unload(Cancel As Integer)
    SaveSetting APP_TITLE, "Articles", "View", cmbView.ListIndex
    SaveSetting APP_TITLE, "Articles", "Sort", IIf(optSort(1).Value, 1, IIf(optSort(2).Value, 2, 0))
    Set mStore = Nothing
End Sub

Private Sub lstArticles_Click()
    Dim article As clsArticle
    Set article = Current
    cmdAction(1).Enabled = Not article Is Nothing
    cmdAction(2).Enabled = cmdAction(1).Enabled
    If Not article Is Nothing Then
        With article
            lblDetails.Caption = .Name & vbCrLf & "Bin " & .Bin & ", " & AmountText(.Stock, UnitName(.Unit)) & _
                ", moved " & AgeText(.LastMoved)
            If .IsBelowMinimum Then
                lblDetails.ForeColor = vbRed
            Else: lblDetails.ForeColor = vbButtonText
            End If
        End With
    End If
End Sub

Private Sub lstArticles_DblClick()
    EditCurrent
End Sub

Private Sub lstArticles_KeyDown(KeyCode As Integer, Shift As Integer)
    If KeyCode = vbKeyReturn Then EditCurrent: KeyCode = 0
    If KeyCode = vbKeyDelete And Shift = 0 Then RemoveCurrent
End Sub

Private Sub lstArticles_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)
    If Button = vbRightButton Then PopupMenu mnuPopup
End Sub

Private Sub mnuPopupEdit_Click()
    EditCurrent
End Sub

Private Sub mnuPopupRemove_Click()
    RemoveCurrent
End Sub

Private Sub mStore_ArticleChanged(ByVal article As clsArticle)
    FillList
End Sub

Private Sub optSort_Click(Index As Integer)
    If Not mFilling Then FillList
End Sub

Private Sub txtSearch_Change()
    tmrSearch.Enabled = False
    tmrSearch.Enabled = True
End Sub

Private Sub tmrSearch_Timer()
    tmrSearch.Enabled = False
    LastSearch.Text = txtSearch.Text
    FillList
End Sub

Private Property Get Current() As clsArticle
    If lstArticles.ListIndex >= 0 Then Set Current = mShown(lstArticles.ItemData(lstArticles.ListIndex))
End Property

Private Sub EditCurrent()
    If Current Is Nothing Then Beep: Exit Sub
    If frmArticle.Edit(Current) Then Store.Touch Current
End Sub

Private Sub RemoveCurrent()
    Dim article As clsArticle
    Set article = Current
    If article Is Nothing Then Exit Sub
    If article.Stock <> 0 Then
        MsgBox "There are still " & AmountText(article.Stock, UnitName(article.Unit)) & " of it.", vbExclamation
    ElseIf Confirm("Remove " & article.Number & " '" & article.Name & "'?") Then
        Store.Articles.Remove article.Number
        FillList
    End If
End Sub

Private Sub OrderMissing()
    Dim count As Long
    count = Store.OrderWhatIsMissing()
    If count = 0 Then mdiMain.ShowStatus "Nothing is missing" Else mdiMain.ShowStatus count & " articles ordered"
End Sub

' Fills the list by view, search text and order. The article under the cursor stays selected.
Private Sub FillList()
    Dim all() As clsArticle, article As clsArticle, keep As clsArticle
    Dim i As Long, j As Long, row As Long, wanted As Boolean

    If mFilling Then Exit Sub
    mFilling = True
    Set keep = Current
    lstArticles.Clear
    mShownCount = 0
    If Store.Articles.Count = 0 Then
        lblDetails.Caption = "No articles yet"
        mFilling = False
        Exit Sub
    End If

    all = Store.Articles.Sorted()
    ReDim mShown(0 To UBound(all))
    For i = LBound(all) To UBound(all)
        Set article = all(i)
        Select Case cmbView.ListIndex
            Case VIEW_BELOW: wanted = article.IsBelowMinimum
            Case VIEW_OLD: wanted = DateDiff("yyyy", article.LastMoved, Now) >= 1
            Case VIEW_NO_BIN: wanted = (article.Bin = "(none)")
            Case VIEW_OUT: wanted = article.OutOfSale
            Case Else: wanted = Not article.OutOfSale
        End Select
        If wanted Then wanted = article.Fits(LastSearch.Text) > 0
        If wanted Then
            ' by name or by value: find the place from behind
            j = mShownCount
            If Not optSort(0).Value Then
                While j > 0
                    If optSort(1).Value Then
                        If StrComp(mShown(j - 1).Name, article.Name, vbTextCompare) <= 0 Then GoTo Found
                    Else
                        If mShown(j - 1).Value >= article.Value Then GoTo Found
                    End If
                    Set mShown(j) = mShown(j - 1)
                    j = j - 1
                Wend
            End If
Found:
            Set mShown(j) = article
            mShownCount = mShownCount + 1
        End If
    Next i

    For row = 0 To mShownCount - 1
        lstArticles.AddItem Stock_Line(mShown(row))
        lstArticles.ItemData(lstArticles.NewIndex) = row
        If mShown(row) Is keep Then lstArticles.ListIndex = row
    Next row
    SetListWidth lstArticles, 480
    lblCount.Caption = mShownCount & " of " & Store.Articles.Count
    mFilling = False
End Sub
