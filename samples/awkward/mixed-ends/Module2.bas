Attribute VB_Name = "Module2"
Option Explicit

Sub B()
    ' a lone  is part of its line

End Sub
