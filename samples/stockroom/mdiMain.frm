VERSION 5.00
Begin VB.MDIForm mdiMain 
   BackColor       =   &H8000000C&
   Caption         =   "Stockroom"
   ClientHeight    =   6330
   ClientLeft      =   165
   ClientTop       =   735
   ClientWidth     =   9975
   Icon            =   "mdiMain.frx":0000
   LinkTopic       =   "MDIForm1"
   StartUpPosition =   3  'Windows Default
   Begin VB.Timer tmrStatus 
      Enabled         =   0   'False
      Interval        =   1000
      Left            =   120
      Top             =   120
   End
   Begin VB.PictureBox picBar 
      Align           =   2  'Align Bottom
      BorderStyle     =   0  'None
      Height          =   375
      Left            =   0
      ScaleHeight     =   375
      ScaleWidth      =   9975
      TabIndex        =   0
      Top             =   5955
      Width           =   9975
      Begin VB.Label lblValue 
         Alignment       =   1  'Right Justify
         Caption         =   "Value 0,00"
         Height          =   240
         Left            =   7440
         TabIndex        =   2
         Top             =   75
         Width           =   2415
      End
      Begin VB.Label lblStatus 
         Height          =   240
         Left            =   120
         TabIndex        =   1
         Top             =   75
         UseMnemonic     =   0   'False
         Width           =   7215
      End
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileImport 
         Caption         =   "&Import..."
      End
      Begin VB.Menu mnuFileSave 
         Caption         =   "&Save"
         Shortcut        =   ^S
      End
      Begin VB.Menu mnuFileBar1 
         Caption         =   "-"
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&1"
         Index           =   1
         Visible         =   0   'False
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&2"
         Index           =   2
         Visible         =   0   'False
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&3"
         Index           =   3
         Visible         =   0   'False
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&4"
         Index           =   4
         Visible         =   0   'False
      End
      Begin VB.Menu mnuFileRecentBar 
         Caption         =   "-"
         Visible         =   0   'False
      End
      Begin VB.Menu mnuFileExit 
         Caption         =   "E&xit"
      End
   End
   Begin VB.Menu mnuStore 
      Caption         =   "&Store"
      Begin VB.Menu mnuStoreArticles 
         Caption         =   "&Articles"
         Shortcut        =   {F2}
      End
      Begin VB.Menu mnuStoreMovements 
         Caption         =   "&Movements"
         Shortcut        =   {F3}
      End
      Begin VB.Menu mnuStoreOrders 
         Caption         =   "&Orders"
         Shortcut        =   {F4}
      End
      Begin VB.Menu mnuStoreSuppliers 
         Caption         =   "&Suppliers"
      End
      Begin VB.Menu mnuStoreBar1 
         Caption         =   "-"
      End
      Begin VB.Menu mnuStoreLabels 
         Caption         =   "Print &labels..."
         Shortcut        =   ^L
      End
   End
   Begin VB.Menu mnuWindow 
      Caption         =   "&Window"
      WindowList      =   -1  'True
      Begin VB.Menu mnuWindowArrange 
         Caption         =   "&Cascade"
         Index           =   0
      End
      Begin VB.Menu mnuWindowArrange 
         Caption         =   "Tile &horizontally"
         Index           =   1
      End
      Begin VB.Menu mnuWindowArrange 
         Caption         =   "Tile &vertically"
         Index           =   2
      End
      Begin VB.Menu mnuWindowArrange 
         Caption         =   "&Arrange icons"
         Index           =   3
      End
   End
   Begin VB.Menu mnuHelp 
      Caption         =   "&Help"
      Begin VB.Menu mnuHelpNotes 
         Caption         =   "&Notes"
         Shortcut        =   {F1}
      End
      Begin VB.Menu mnuHelpAbout 
         Caption         =   "&About Stockroom"
      End
   End
End
Attribute VB_Name = "mdiMain"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private WithEvents mStore As clsStore
Attribute mStore.VB_VarHelpID = -1
Private mTicks As Long

Private Sub MDIForm_Load()
    Set mStore = Store
    Me.Caption = APP_TITLE & " - " & Store.Folder
    ShowRecentFiles
    ShowStatus "Ready"
    ShowChild frmArticles
End Sub

Private Sub MDIForm_QueryUnload(Cancel As Integer, UnloadMode As Integer)
    If Store Is Nothing Then Exit Sub
    If Not Store.IsDirty Then Exit Sub
    Select Case MsgBox("Save the changes?", vbYesNoCancel + vbQuestion, APP_TITLE)
        Case vbYes
            mnuFileSave_Click
            If Store.IsDirty Then Cancel = True
        Case vbCancel
            Cancel = True
    End Select
    If UnloadMode = vbAppWindows And Cancel = 0 Then WriteLog "ended by the system"
End Sub

Private Sub MDIForm_Unload(Cancel As Integer)
    Set mStore = Nothing
    ShutDown
End Sub

Private Sub mnuFileExit_Click()
    Unload Me
End Sub

Private Sub mnuFileImport_Click()
    frmImport.Show vbModal, Me
End Sub

Private Sub mnuFileRecent_Click(Index As Integer)
    If Len(gRecentFiles(Index)) = 0 Then Exit Sub
    frmImport.ImportFile gRecentFiles(Index)
End Sub

Private Sub mnuFileSave_Click()
    On Error GoTo SaveFailed
    Screen.MousePointer = vbHourglass
    Store.SaveAll
    ShowStatus "Saved"
Leave:
    Screen.MousePointer = vbDefault
    Exit Sub
SaveFailed:
    MsgBox "The data could not be saved." & vbCrLf & Err.Description, vbExclamation, APP_TITLE
    Resume Leave
End Sub

Private Sub mnuHelpAbout_Click()
    frmAbout.Show vbModal
End Sub

Private Sub mnuHelpNotes_Click()
    If Not OpenDocument(App.Path & "\notes.txt", Nothing) Then MsgBox "There are no notes.", vbInformation, APP_TITLE
End Sub

Private Sub mnuStoreArticles_Click()
    ShowChild frmArticles
End Sub

Private Sub mnuStoreLabels_Click()
    frmLabels.Show vbModal, Me
End Sub

Private Sub mnuStoreMovements_Click()
    ShowChild frmMovements
End Sub

Private Sub mnuStoreOrders_Click()
    ShowChild frmOrders
End Sub

Private Sub mnuStoreSuppliers_Click()
    ShowChild frmSuppliers
End Sub

Private Sub mnuWindowArrange_Click(Index As Integer)
    Me.Arrange Choose(Index + 1, vbCascade, vbTileHorizontal, vbTileVertical, vbArrangeIcons)
End Sub

Private Sub mStore_ArticleChanged(ByVal article As clsArticle)
    lblValue.Caption = "Value " & PriceText(Store.TotalValue)
End Sub

Private Sub mStore_Booked(ByVal movement As clsMovement)
    ShowStatus movement.Text
End Sub

Private Sub mStore_OrdersChanged()
    If FormIsLoaded("frmOrders") Then frmOrders.FillOrders
End Sub

Private Sub mStore_Progress(ByVal text As String, ByVal done As Long, ByVal total As Long)
    If total > 0 Then ShowStatus text & " " & Format$(done / total, "0%")
    DoEvents
End Sub

Private Sub picBar_Resize()
    Const GAP = 120
    If picBar.ScaleWidth < 4000 Then Exit Sub
    lblValue.Left = picBar.ScaleWidth - lblValue.Width - GAP
    lblStatus.Width = lblValue.Left - lblStatus.Left - GAP
End Sub

Private Sub tmrStatus_Timer()
    mTicks = mTicks + 1
    If mTicks >= 5 Then
        lblStatus.Caption = ""
        tmrStatus.Enabled = False
    End If
End Sub

Public Sub ShowStatus(ByVal text As String)
    lblStatus.Caption = Shorten(text, 80)
    mTicks = 0
    tmrStatus.Enabled = True
End Sub

Public Sub ShowRecentFiles()
    Dim i As Integer, any_ As Boolean
    For i = 1 To MAX_RECENT
        mnuFileRecent(i).Visible = Len(gRecentFiles(i)) > 0
        If mnuFileRecent(i).Visible Then mnuFileRecent(i).Caption = "&" & i & " " & Shorten(gRecentFiles(i)): any_ = True
    Next
    mnuFileRecentBar.Visible = any_
End Sub

Private Function FormIsLoaded(ByVal formName As String) As Boolean
    Dim i As Integer
    Do Until i >= Forms.Count
        If Forms(i).Name = formName Then
            FormIsLoaded = True
            Exit Do
        End If
        i = i + 1
    Loop
End Function
