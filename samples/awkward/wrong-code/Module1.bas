Attribute VB_Name = "Module1"
Option Explicit

Sub Open_()
    If True Then
        For i = 1 To 3
    End If
End Sub

End Sub

Function NoEnd(ByVal x)
    Select Case x
        Case 1: NoEnd = "unclosed string
        Case Else
    Wend

Sub Next_()
    With Me
    Loop
End Function
