Option Explicit

Sub A()
End Sub
