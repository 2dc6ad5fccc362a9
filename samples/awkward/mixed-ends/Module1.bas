Attribute VB_Name = "Module1"
Option Explicit

Sub A()
End Sub
