Attribute VB_Name = "modFormat"
Option Explicit
Option Compare Text

' Texts for people: amounts, bins, dates. And the way back.

Private Const RACKS As String = "ABCDEFGH"
Private Const SHELVES_PER_RACK = 6, PLACES_PER_SHELF = 12

' "A-03-11" for rack A, shelf 3, place 11.
Public Function BinText(bin As BinAddress) As String
    If bin.Shelf = 0 Then
        BinText = "(none)"
    Else
        BinText = bin.Rack & "-" & Format$(bin.Shelf, "00") & "-" & Format$(bin.Place, "00")
    End If
End Function

' Reads what BinText writes, and what people write: "a3/11", "A 3 11", "a-3-11".
' False and an empty address if it is no bin of ours.
Public Function ParseBin(ByVal text As String, ByRef bin As BinAddress) As Boolean
    Dim i As Integer, ch As String
    Dim part As Integer, numbers(1 To 2) As Integer, inNumber As Boolean

    text = UCase$(Trim$(text))
    If Len(text) = 0 Then GoTo NoBin
    If InStr(RACKS, Left$(text, 1)) = 0 Then GoTo NoBin
    bin.Rack = Left$(text, 1)

    i = 2
    Do While i <= Len(text)
        ch = Mid$(text, i, 1)
        Select Case ch
            Case "0" To "9"
                If Not inNumber Then
                    part = part + 1
                    If part > 2 Then GoTo NoBin
                    inNumber = True
                End If
                numbers(part) = numbers(part) * 10 + Val(ch)
                If numbers(part) > 99 Then
                    GoTo NoBin
                End If
            Case "-", "/", " ", "."
                inNumber = False
            Case Else
                GoTo NoBin
        End Select
        i = i + 1
    Loop

    If part = 2 Then
        bin.Shelf = numbers(1)
        bin.Place = numbers(2)
        ParseBin = bin.Shelf >= 1 And bin.Shelf <= SHELVES_PER_RACK _
            And bin.Place >= 1 And bin.Place <= PLACES_PER_SHELF
        If ParseBin Then Exit Function
    End If

NoBin:
    bin.Rack = " "
    bin.Shelf = 0
    bin.Place = 0
    ParseBin = False
End Function

Public Function AmountText(ByVal amount As Double, ByVal unitName As String) As String
    If amount = Int(amount) Then
        AmountText = Format$(amount, "#,##0") & " " & unitName
    Else
        AmountText = Format$(amount, "#,##0.###") & " " & unitName
    End If
    If Abs(amount) <> 1 And unitName <> "" Then If unitName = "piece" Then AmountText = AmountText & "s" Else If unitName = "box" Then AmountText = AmountText & "es"
End Function

Public Function PriceText(ByVal price As Currency) As String
    PriceText = Format$(price, "#,##0.00")
End Function

' "today", "yesterday", "12 days ago", or the date.
Public Function AgeText(ByVal when As Date) As String
    Dim days As Long: days = DateDiff("d", when, Date)
    Select Case days
    Case Is < 0
        AgeText = "in the future"
    Case 0
        AgeText = "today"
    Case 1: AgeText = "yesterday"
    Case 2 To 30
        AgeText = days & " days ago"
    Case Else
        If when < #1/1/1990# Then
            AgeText = "long ago"
        Else
            AgeText = Format$(when, "Medium Date")
        End If
    End Select
End Function

Public Function UnitName(ByVal unit As Integer) As String
    UnitName = Choose(unit, "piece", "box", "metre", "kilogram", "litre")
End Function

' Text for a window: the middle is left out when it is too long.
Public Function Shorten(ByVal text As String, Optional ByVal longest As Long = 40) As String
    Dim half As Long
    If Len(text) <= longest Then Shorten = text: Exit Function
    half = (longest - 3) \ 2
    Shorten = Left$(text, half) & "..." & Right$(text, longest - 3 - half)
End Function

' How many words a text has: "hex bolt  M8" has three.
Public Function WordCount(ByVal text As String) As Long
    Dim at As Long
    text = Trim$(text)
    If Len(text) = 0 Then Exit Function
    Do
        WordCount = WordCount + 1
        at = InStr(text, " ")
        If at > 0 Then text = LTrim$(Mid$(text, at))
    Loop Until at = 0
End Function

' A text for a message: "it's" becomes "it''s", because the report writer quotes with apostrophes.
Public Function Quoted(ByVal text As String) As String
    Quoted = "'" & Replace(text, "'", "''") & "'"      ' not """"
End Function

Public Function IsArticleNumber(ByVal text As String) As Boolean
    ' one letter, a dash and figures: A-100 _
      (older numbers have two letters, as AB-1200)
    IsArticleNumber = text Like "[A-Z]-#*" Or text Like "[A-Z][A-Z]-#*"
    If Not IsArticleNumber Then Exit Function
    Dim i As Integer
    For i = InStr(text, "-") + 1 To Len(text)
        If Not IsNumeric(Mid$(text, i, 1)) Then
            IsArticleNumber = False
            Exit For
        End If
    Next
End Function

Rem The next one is kept for the old reports, which ask for it by name.
Public Function Stock_Line(article As clsArticle) As String
    With article
        Stock_Line = Left$(.Number & Space$(10), 10) & Left$(.Name & Space$(30), 30) & _
            Right$(Space$(12) & AmountText(.Stock, ""), 12)
    End With
End Function
