Attribute VB_Name = "Module1"
Option Explicit

Public Const STREAM = ":SummaryInformation"
Public Const ALL_OF_THEM = ""

Sub A()
	Debug.Print	"tabs" ' and a page break: 
	Dim a b
End Sub
