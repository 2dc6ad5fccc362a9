VERSION 5.00
Begin VB.Form frmImport 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Import articles"
   ClientHeight    =   5415
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7215
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   5415
   ScaleWidth      =   7215
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin VB.CommandButton cmdClose 
      Cancel          =   -1  'True
      Caption         =   "Close"
      Height          =   375
      Left            =   5880
      TabIndex        =   10
      Top             =   4920
      Width           =   1215
   End
   Begin VB.CommandButton cmdImport 
      Caption         =   "&Import"
      Height          =   375
      Left            =   4560
      TabIndex        =   9
      Top             =   4920
      Width           =   1215
   End
   Begin VB.Label lblResult 
      Height          =   255
      Left            =   120
      TabIndex        =   8
      Top             =   4500
      Width           =   6975
   End
   Begin VB.TextBox txtPreview 
      BackColor       =   &H8000000F&
      BeginProperty Font 
         Name            =   "Courier New"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   1575
      Left            =   120
      Locked          =   -1  'True
      MultiLine       =   -1  'True
      ScrollBars      =   3  'Both
      TabIndex        =   7
      Text            =   "frmImport.frx":0034
      Top             =   2760
      Width           =   6975
   End
   Begin VB.Frame fraOptions 
      Caption         =   "Options"
      Height          =   2490
      Left            =   5400
      TabIndex        =   3
      Top             =   60
      Width           =   1695
      Begin VB.CheckBox chkHeading 
         Caption         =   "First line is a &heading"
         Height          =   435
         Left            =   120
         TabIndex        =   6
         Top             =   1020
         Value           =   1  'Checked
         Width           =   1455
      End
      Begin VB.ComboBox cmbSeparator 
         Height          =   315
         ItemData        =   "frmImport.frx":0000
         Left            =   120
         List            =   "frmImport.frx":000F
         Style           =   2  'Dropdown List
         TabIndex        =   5
         Top             =   540
         Width           =   1455
      End
      Begin VB.Label lblSeparator 
         Caption         =   "&Separator:"
         Height          =   255
         Left            =   120
         TabIndex        =   4
         Top             =   300
         Width           =   1455
      End
   End
   Begin VB.FileListBox filFiles 
      Height          =   2430
      Left            =   2760
      Pattern         =   "*.csv;*.txt"
      TabIndex        =   2
      Top             =   120
      Width           =   2535
   End
   Begin VB.DirListBox dirFolder 
      Height          =   2115
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   2535
   End
   Begin VB.DriveListBox drvDrive 
      Height          =   315
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   2535
   End
End
Attribute VB_Name = "frmImport"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Reads articles from a file of another program: shows the first lines, asks for the separator, checks every line.

Private Const PREVIEW_LINES = 8

Private Type ImportResult
    Added As Long
    Changed As Long
    Bad As Long
End Type

Private mFile As String
Private mStop As Boolean
Private mLines() As String

Public Sub ImportFile(ByVal fileName As String)
    Load Me
    mFile = fileName
    If ReadFile() Then
        ShowPreview
        Me.Show vbModal, mdiMain
    End If
End Sub

Private Sub cmdClose_Click()
    mStop = True
    Unload Me
End Sub

Private Sub cmdImport_Click()
    Dim result As ImportResult, start As Long

    If mFile = "" Then Exit Sub
    start = GetTickCount()
    cmdImport.Enabled = False
    mStop = False
    result = ImportLines(Chr$(cmbSeparator.ItemData(cmbSeparator.ListIndex)))
    cmdImport.Enabled = True
    With result
        lblResult.Caption = .Added & " new, " & .Changed & " changed, " & .Bad & " not understood, " & _
            Format$(SecondsSince(start), "0.0") & " s"
    End With
    AddRecentFile mFile
    mdiMain.ShowRecentFiles
End Sub

Private Sub filFiles_Click()
    mFile = filFiles.Path & IIf(Right$(filFiles.Path, 1) = "\", "", "\") & filFiles.FileName
    If ReadFile() Then ShowPreview
End Sub

Private Sub dirFolder_Change()
    filFiles.Path = dirFolder.Path
End Sub

Private Sub drvDrive_Change()
    On Error GoTo NotReady
    dirFolder.Path = drvDrive.Drive
    Exit Sub
NotReady:
    If MsgBox("Drive " & drvDrive.Drive & " is not ready.", vbRetryCancel + vbExclamation) = vbRetry Then Resume
    drvDrive.Drive = Left$(dirFolder.Path, 2)
End Sub

Private Function ReadFile() As Boolean
    Dim file As Integer, content As String

    On Error GoTo Failed
    file = FreeFile
    Open mFile For Binary Access Read As #file
    content = Space$(LOF(file))
    Get #file, , content
    Close #file
    Do                                      ' blank lines at the end are no articles
        If Right$(content, 2) <> vbCrLf Then Exit Do
        content = Left$(content, Len(content) - 2)
    Loop
    mLines = Split(Replace(content, vbCrLf, vbLf), vbLf)
    ReadFile = UBound(mLines) >= 0
    Exit Function
Failed:
    Close #file
    MsgBox mFile & ": " & Err.Description, vbExclamation, APP_TITLE
End Function

Private Sub ShowPreview()
    Dim i As Integer, text As String, separator As String

    For i = 0 To UBound(mLines)
        If i >= PREVIEW_LINES Then Exit For
        text = text & mLines(i) & vbCrLf
    Next i
    txtPreview.Text = text
    separator = GuessSeparator(mLines(0))
    For i = 0 To cmbSeparator.ListCount - 1
        If cmbSeparator.ItemData(i) = Asc(separator) Then cmbSeparator.ListIndex = i: Exit For
    Next i
End Sub

' Number;Name;Unit;Price;Minimum - more columns are passed over.
Private Function ImportLines(ByVal separator As String) As ImportResult
    Dim i As Long, fields() As String, article As clsArticle
    Dim isNew As Boolean

    For i = IIf(chkHeading.Value = vbChecked, 1, 0) To UBound(mLines)
        If Len(Trim$(mLines(i))) > 0 Then
            fields = CutCsv(mLines(i), separator)
            On Error Resume Next
            If UBound(fields) >= 4 Then
                isNew = Not Store.Articles.Exists(fields(0))
                If isNew Then
                    Set article = New clsArticle
                    article.Number = fields(0)
                Else
                    Set article = Store.Articles(UCase$(fields(0)))
                End If
                article.Name = fields(1)
                article.Unit = CsvNumber(fields(2))
                article.Price = CsvNumber(fields(3))
                article.Minimum = CsvNumber(fields(4))
                If Err.Number = 0 Then
                    If isNew Then
                        Store.AddArticle article
                        ImportLines.Added = ImportLines.Added + 1
                    Else
                        Store.Touch article
                        ImportLines.Changed = ImportLines.Changed + 1
                    End If
                Else
                    ImportLines.Bad = ImportLines.Bad + 1
                    Err.Clear
                End If
            Else
                ImportLines.Bad = ImportLines.Bad + 1
            End If
            On Error GoTo 0
        End If
        If i Mod 50 = 0 Then
            lblResult.Caption = i & " of " & UBound(mLines)
            DoEvents
            If mStop Then Exit Function
        End If
    Next i
End Function
