Attribute VB_Name = "modMain"
Option Explicit

' Stockroom: articles, bins, movements, suppliers and orders of a small store.
' Start-up, the objects that live as long as the program, and the settings.

#Const LogToFile = True

Public Const APP_TITLE As String = "Stockroom"
Public Const DATA_FOLDER = "data"
Public Const MAX_RECENT As Integer = 4

Public Enum MovementKind
    mkReceipt = 1
    mkIssue = 2
    mkTransfer = 3
    mkCorrection = 4
End Enum

Public Type BinAddress
    Rack As String * 1
    Shelf As Integer
    Place As Integer
End Type

Public Type SearchOptions
    Text As String
    Type As Integer             ' members may be named like keywords
    MatchCase As Boolean
    Name As String
End Type

Public Store As clsStore
Public CurrentUser As String
Public LastSearch As SearchOptions
Public IsClosing As Boolean, PrinterReady As Boolean
Global gRecentFiles(1 To MAX_RECENT) As String
Dim mLogFile As Integer
Private mLogName As String

Public Sub Main()
    Dim firstArg As String, answer As VbMsgBoxResult

    On Error GoTo StartFailed
    CurrentUser = UserNameOfSystem()
    If Len(CurrentUser) = 0 Then CurrentUser = "nobody"

    ChDrive App.Path: ChDir App.Path
    OpenLog App.Path & "\" & App.EXEName & ".log"

    Set Store = New clsStore
    firstArg = Trim$(Command$)
    If firstArg = "/?" Or LCase$(firstArg) = "-h" Then
        MsgBox "Stockroom [data folder]", vbInformation, APP_TITLE
        Exit Sub
    ElseIf Len(firstArg) > 0 Then
        Store.Folder = firstArg
    Else
        Store.Folder = App.Path & "\" & DATA_FOLDER
    End If

TryAgain:
    If Not Store.LoadAll() Then
        answer = MsgBox("The data in '" & Store.Folder & "' could not be read." & vbCrLf & _
                        "Start with an empty store?", vbQuestion + vbYesNoCancel, APP_TITLE)
        Select Case answer
            Case vbYes
                Store.Clear
            Case vbNo: GoTo TryAgain
            Case Else
                CloseLog
                Exit Sub
        End Select
    End If

    LoadRecentFiles
    mdiMain.Show
    Exit Sub

StartFailed:
    MsgBox "Stockroom cannot start: " & Err.Description & " (" & Err.Number & ")", vbCritical, APP_TITLE
    CloseLog
    End
End Sub

Public Sub ShutDown()
    Dim frm As Form

    If IsClosing Then Exit Sub
    IsClosing = True
    SaveRecentFiles
    For Each frm In Forms
        If Not frm Is mdiMain Then Unload frm
    Next frm
    Set Store = Nothing
    CloseLog
End Sub

' The log is a plain text file; a second copy of the program must not
' fail because the first one holds it open.
Private Sub OpenLog(ByVal fileName As String)
#If LogToFile Then
    On Error Resume Next
    mLogFile = FreeFile
    Open fileName For Append Access Write Shared As #mLogFile
    If Err.Number <> 0 Then mLogFile = 0
    mLogName = fileName
    On Error GoTo 0
#End If
End Sub

Public Sub WriteLog(ByVal text As String, Optional ByVal module As String)
#If LogToFile Then
    If mLogFile = 0 Then Exit Sub
    If Len(module) > 0 Then text = module & ": " & text
    Print #mLogFile, Format$(Now, "yyyy-mm-dd hh:nn:ss"); Tab(24); text
#Else
    Debug.Print text
#End If
End Sub

Private Sub CloseLog()
    If mLogFile <> 0 Then Close #mLogFile
    mLogFile = 0
End Sub

Public Sub LoadRecentFiles()
    Dim i As Integer

    For i = 1 To MAX_RECENT
        gRecentFiles(i) = GetSetting(APP_TITLE, "Recent", "File" & i, "")
    Next i
End Sub

Public Sub SaveRecentFiles()
    Dim i%
    For i% = LBound(gRecentFiles) To UBound(gRecentFiles)
        If gRecentFiles(i%) <> "" Then SaveSetting APP_TITLE, "Recent", "File" & i%, gRecentFiles(i%)
    Next
End Sub

Public Sub AddRecentFile(ByVal fileName As String)
    Dim i As Integer, place As Integer

    place = MAX_RECENT
    For i = 1 To MAX_RECENT
        If StrComp(gRecentFiles(i), fileName, vbTextCompare) = 0 Then place = i: Exit For
    Next i
    For i = place To 2 Step -1
        gRecentFiles(i) = gRecentFiles(i - 1)
    Next i
    gRecentFiles(1) = fileName
End Sub

' Shows a form as a child of the main window, once.
Public Function ShowChild(frm As Form) As Boolean
    On Error GoTo Failed
    frm.Show
    If frm.WindowState = vbMinimized Then frm.WindowState = vbNormal
    frm.ZOrder
    ShowChild = True
    Exit Function
Failed:
    WriteLog "cannot show " & frm.Name & ": " & Err.Description, "modMain"
    Resume Next
End Function

Public Function Confirm(prompt As String, Optional yesIsDefault As Boolean = False) As Boolean
    Dim style As Long
    style = vbQuestion Or vbYesNo
    If Not yesIsDefault Then style = style Or vbDefaultButton2
    Confirm = (MsgBox(prompt, style, APP_TITLE) = vbYes)
End Function
