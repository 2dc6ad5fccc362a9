Attribute VB_Name = "modTools"
Option Explicit

Public Sub Start()
    Debug.Print "modTools"
End Sub
