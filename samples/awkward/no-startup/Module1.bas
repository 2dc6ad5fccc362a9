Attribute VB_Name = "Module1"
Option Explicit

Public Sub Start()
    Debug.Print "Module1"
End Sub
