Attribute VB_Name = "Here"
Option Explicit

Public Sub Start()
    Debug.Print "Here"
End Sub
