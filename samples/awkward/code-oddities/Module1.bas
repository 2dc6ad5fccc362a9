Attribute VB_Name = "Module1"
Option Explicit

Type Record
    Type As Long
    Name As String
    Date As Date
    Sub_ As Integer
    End_ As Boolean
End Type

Enum Colors
    [red light] = 1
    [_hidden]
End Enum

' a comment that goes on _
Sub NotASub()
Public a As Long ' and so does this one _
Public NotDeclared As Long
Public b As Long, _

Static Function Both(Optional x = "a:b ' c") As String: Both = x: End Function
Sub One(): Dim i As Integer: For i = 1 To 3: Debug.Print i: Next: End Sub
Public Sub Jumps(ByVal n%, ByVal s$, d#, c@, l&, f!)
10 On Err GoTo Label1, Label2
20: If n% = 1 Then If s$ = "" Then GoTo Label1 Else GoTo Label2 Else GoSub Part
    If n% Then: Beep
    Else: Beep
    If s$ = "If x Then" Then _
        Beep _
    Else Beep
    On n% GoSub Part, Part
    Select Case n%: Case 1: Beep: Case Else: End Select
Label1: Debug.Print "label with a statement"
    Do: n% = n% + 1: Loop While n% < 3
    While f! < 1: f! = f! + 1: Wend
    Rem a remark: End Sub
    Let n% = rs!Field: [a b].Value = rs![x y]: Debug.Print Rem_
    Debug.Print #1/31/2005 4:05:06 PM#, &HFF&, 1E-3, d#, """quoted"" 'no comment", 'comment "no string"
Label2:
    Call Foo(a:=1, b:=2): Exit Sub
Part: Return
End Sub

Public Property Get [Case]() As Long
End Property
