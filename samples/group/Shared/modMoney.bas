Attribute VB_Name = "modMoney"
Option Explicit

' Shared by the till and the report: both must round alike.

Public Function PriceText(ByVal price As Currency) As String
    PriceText = Format$(price, "#,##0.00")
End Function

' To the next five cents, as cash is paid.
Public Function RoundToFive(ByVal price As Currency) As Currency
    RoundToFive = Int(price * 20 + 0.5) / 20
End Function

Public Function ParsePrice(ByVal text As String, ByRef price As Currency) As Boolean
    On Error GoTo NoPrice
    price = CCur(text)
    ParsePrice = price > 0
    Exit Function
NoPrice:
    price = 0
End Function
