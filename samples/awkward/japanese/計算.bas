Attribute VB_Name = "計算"
Option Explicit

Public Function 合計(ByVal 甲 As Long, ByVal 乙 As Long) As Long
    合計 = 甲 + 乙　' 全角の空白
End Function
