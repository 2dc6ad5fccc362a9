Attribute VB_Name = "Модуль1"
Option Explicit

Public Function Сумма(ByVal а As Long, ByVal б As Long) As Long
    Сумма = а + б       ' и всё
End Function
