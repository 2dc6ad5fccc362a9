VERSION 5.00
Begin VB.Form frmLabels 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Print labels"
   ClientHeight    =   5055
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7335
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   5055
   ScaleWidth      =   7335
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin VB.CommandButton cmdClose 
      Cancel          =   -1  'True
      Caption         =   "Close"
      Height          =   375
      Left            =   6000
      TabIndex        =   8
      Top             =   4560
      Width           =   1215
   End
   Begin VB.CommandButton cmdPrint 
      Caption         =   "&Print"
      Height          =   375
      Left            =   4680
      TabIndex        =   7
      Top             =   4560
      Width           =   1215
   End
   Begin VB.Shape shpFrame 
      BorderColor     =   &H80000010&
      Height          =   15
      Left            =   60
      Top             =   4440
      Width           =   7215
   End
   Begin VB.TextBox txtHelp 
      BackColor       =   &H80000018&
      Height          =   1125
      Left            =   3120
      Locked          =   -1  'True
      MultiLine       =   -1  'True
      ScrollBars      =   2  'Vertical
      TabIndex        =   6
      Text            =   "frmLabels.frx":0000
      Top             =   3180
      Width           =   4095
   End
   Begin VB.VScrollBar vsbFirst 
      Height          =   375
      Left            =   3120
      Max             =   24
      Min             =   1
      TabIndex        =   5
      Top             =   2700
      Value           =   1
      Width           =   255
   End
   Begin VB.Label lblFirst 
      Caption         =   "Begin at place 1"
      Height          =   255
      Left            =   3480
      TabIndex        =   4
      Top             =   2760
      Width           =   3735
   End
   Begin VB.PictureBox picPreview 
      BackColor       =   &H00FFFFFF&
      Height          =   2055
      Left            =   3120
      ScaleHeight     =   1995
      ScaleWidth      =   4035
      TabIndex        =   3
      Top             =   540
      Width           =   4095
   End
   Begin VB.ListBox lstPick 
      Height          =   3765
      Left            =   120
      MultiSelect     =   1  'Simple
      TabIndex        =   2
      Top             =   540
      Width           =   2895
   End
   Begin VB.ComboBox cmbSheet 
      Height          =   315
      ItemData        =   "frmLabels.frx":0148
      Left            =   840
      List            =   "frmLabels.frx":0158
      Style           =   2  'Dropdown List
      TabIndex        =   1
      Top             =   120
      Width           =   2175
   End
   Begin VB.Label lblSheet 
      Caption         =   "&Sheet:"
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   150
      Width           =   615
   End
End
Attribute VB_Name = "frmLabels"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Prints labels with Code 39 bars, many to a sheet.

Private Const CODE_CHARS As String = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*"
Private Const NARROW = 1, WIDE = 3

' Nine elements of each character, bars and gaps in turn: n narrow, w wide.
Private mPatterns(1 To 44) As String
Private mReady As Boolean

Private Sub Form_Load()
    Dim article As clsArticle
    LoadPatterns
    For Each article In Store.Articles
        lstPick.AddItem article.Number & "  " & article.Name
    Next
    cmbSheet.ListIndex = 0
End Sub

Private Static Sub LoadPatterns()
    Dim timesLoaded As Integer
    If timesLoaded > 0 And mReady Then Exit Sub
    timesLoaded = timesLoaded + 1
    Dim text As String, i As Integer
    text = "nnnwwnwnn wnnwnnnnw nnwwnnnnw wnwwnnnnn nnnwwnnnw wnnwwnnnn nnwwwnnnn nnnwnnwnw wnnwnnwnn nnwwnnwnn " & _
        "wnnnnwnnw nnwnnwnnw wnwnnwnnn nnnnwwnnw wnnnwwnnn nnwnwwnnn nnnnnwwnw wnnnnwwnn nnwnnwwnn nnnnwwwnn " & _
        "wnnnnnnww nnwnnnnww wnwnnnnwn nnnnwnnww wnnnwnnwn nnwnwnnwn nnnnnnwww wnnnnnwwn nnwnnnwwn nnnnwnwwn " & _
        "wwnnnnnnw nwwnnnnnw wwwnnnnnn nwnnwnnnw wwnnwnnnn nwwnwnnnn nwnnnnwnw wwnnnnwnn nwwnnnwnn nwnwnwnnn " & _
        "nwnwnnnwn nwnnnwnwn nnnwnwnwn nwnnwnwnn"
    For i = 1 To 44
        mPatterns(i) = Mid$(text, (i - 1) * 10 + 1, 9)
    Next i
    mReady = True
End Sub

Private Sub cmbSheet_Click()
    vsbFirst.Max = cmbSheet.ItemData(cmbSheet.ListIndex)
    DrawPreview
End Sub

Private Sub cmdPrint_Click()
    Dim i As Integer, place As Integer, perSheet As Integer
    Dim target As Object

    perSheet = cmbSheet.ItemData(cmbSheet.ListIndex)
    place = vsbFirst.Value
    On Error GoTo PrintFailed
    Set target = Printer
    target.ScaleMode = vbTwips
    For i = 0 To lstPick.ListCount - 1
        If lstPick.Selected(i) Then
            If place > perSheet Then
                Printer.NewPage
                place = 1
            End If
            DrawLabel target, CStr(Split(lstPick.List(i), "  ")(0)), ((place - 1) Mod 3) * 3969, ((place - 1) \ 3) * 2041
            place = place + 1
        End If
    Next i
    Printer.EndDoc
    vsbFirst.Value = IIf(place > perSheet, 1, place)
    Exit Sub
PrintFailed:
    MsgBox "Not printed: " & Err.Description, vbExclamation, APP_TITLE
End Sub

Private Sub cmdClose_Click()
    Unload Me
End Sub

Private Sub lstPick_Click()
    DrawPreview
End Sub

Private Sub vsbFirst_Change()
    lblFirst.Caption = "Begin at place " & vsbFirst.Value
End Sub

Private Sub DrawPreview()
    If lstPick.ListIndex < 0 Then Exit Sub
    picPreview.Cls
    DrawLabel picPreview, CStr(Split(lstPick.List(lstPick.ListIndex), "  ")(0)), 0, 0
End Sub

Private Sub DrawLabel(target As Object, ByVal number As String, ByVal left_ As Single, ByVal top_ As Single)
    Dim x As Single, i As Integer, j As Integer, width_ As Single, at As Integer
    Dim code As String

    code = "*" & UCase$(number) & "*"
    x = left_ + 240
    For i = 1 To Len(code)
        at = InStr(1, CODE_CHARS, Mid$(code, i, 1), vbBinaryCompare)
        If at > 0 Then
            For j = 1 To 9
                If Mid$(mPatterns(at), j, 1) = "w" Then width_ = WIDE Else width_ = NARROW
                width_ = width_ * 15
                If j Mod 2 = 1 Then
                    target.Line (x, top_ + 240)-(x + width_, top_ + 1000), vbBlack, BF
                End If
                x = x + width_
            Next j
            x = x + NARROW * 15
        End If
    Next i
    target.CurrentX = left_ + 240: target.CurrentY = top_ + 1080
    target.Print number
    If Store.Articles.Exists(number) Then
        target.CurrentX = left_ + 240
        target.Print Shorten(Store.Articles(number).Name, 24)
    End If
End Sub
