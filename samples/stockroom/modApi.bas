Attribute VB_Name = "modApi"
Option Explicit

' What the system does better than we: user name, ticks, opening a document.

Public Declare Function GetTickCount Lib "kernel32" () As Long
Private Declare Function GetUserNameA Lib "advapi32.dll" (ByVal lpBuffer As String, nSize As Long) As Long
Private Declare Function ShellExecuteA Lib "shell32.dll" (ByVal hwnd As Long, ByVal lpOperation As String, _
    ByVal lpFile As String, ByVal lpParameters As String, ByVal lpDirectory As String, _
    ByVal nShowCmd As Long) As Long
Private Declare Function SendMessageByNum Lib "user32" Alias "SendMessageA" (ByVal hwnd As Long, _
    ByVal wMsg As Long, ByVal wParam As Long, ByVal lParam As Long) As Long

Private Const LB_SETTABSTOPS As Long = &H192
Private Const LB_SETHORIZONTALEXTENT = &H194&
Private Const SW_SHOWNORMAL = 1
Private Const NO_ASSOCIATION As Long = 31

Public Function UserNameOfSystem() As String
    Dim buffer As String, size As Long
    size = 256
    buffer = String$(size, vbNullChar)
    If GetUserNameA(buffer, size) <> 0 Then UserNameOfSystem = Left$(buffer, size - 1)
End Function

Public Function OpenDocument(ByVal path As String, Optional owner As Form) As Boolean
    Dim hwndOwner As Long
    If Not owner Is Nothing Then hwndOwner = owner.hWnd
    OpenDocument = ShellExecuteA(hwndOwner, "open", path, vbNullString, vbNullString, SW_SHOWNORMAL) > NO_ASSOCIATION
End Function

Public Sub SetListWidth(list As ListBox, ByVal pixels As Long)
    SendMessageByNum list.hWnd, LB_SETHORIZONTALEXTENT, pixels, 0&
End Sub

' Seconds since [start], right over the wrap of the tick counter too.
Public Function SecondsSince(ByVal start As Long) As Double
    Dim passed As Double
    passed = CDbl(GetTickCount()) - start
    If passed < 0 Then passed = passed + 4294967296#
    SecondsSince = passed / 1000
End Function
