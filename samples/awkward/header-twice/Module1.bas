Attribute VB_Name = "Module1"
Option Explicit

#Const Modern = 1

#If Modern Then
Public Function Size(ByVal path As String, _
                     Optional ByVal exact As Boolean) As Long
#Else
Public Function Size(ByVal path As String) As Long
#End If
    On Error Resume Next
    Size = FileLen(path)
#If Modern Then
    If exact Then
#Else
    If True Then
#End If
        Size = Size + 0
    End If
End Function

#If Win32 Then
Public Declare Function GetTickCount Lib "kernel32" () As Long
#ElseIf Win16 Then
Public Declare Function GetTickCount Lib "user" () As Long
#Else
#End If

Public Sub After()
End Sub
