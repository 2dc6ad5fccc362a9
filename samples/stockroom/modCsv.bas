Attribute VB_Name = "modCsv"
Option Explicit
Option Private Module

' Comma separated values, with any separator.

Public Enum CsvState
    csvField
    csvQuoted
    csvQuoteInQuoted
End Enum

' Cuts one line into fields; the result counts from 0. A quote inside a quoted field is doubled.
Public Function CutCsv(ByVal text As String, ByVal separator As String) As String()
    Dim fields() As String, count As Long
    Dim state As CsvState, i As Long, ch As String

    ReDim fields(0 To 7)
    state = csvField
    For i = 1 To Len(text)
        ch = Mid$(text, i, 1)
        Select Case state
            Case csvField
                If ch = """" And Len(fields(count)) = 0 Then
                    state = csvQuoted
                ElseIf ch = separator Then
                    count = count + 1
                    If count > UBound(fields) Then
                        ReDim Preserve fields(0 To UBound(fields) * 2 + 1)
                    End If
                Else
                    fields(count) = fields(count) & ch
                End If
            Case csvQuoted
                If ch = """" Then state = csvQuoteInQuoted Else fields(count) = fields(count) & ch
            Case csvQuoteInQuoted
                If ch = """" Then
                    fields(count) = fields(count) & ch
                    state = csvQuoted
                Else
                    state = csvField
                    i = i - 1               ' look at it again as part of a plain field
                End If
        End Select
    Next i
    ReDim Preserve fields(0 To count)
    CutCsv = fields
End Function

Public Function JoinCsv(ByVal separator As String, ParamArray values() As Variant) As String
    Dim value As Variant, text As String, first As Boolean

    first = True
    For Each value In values
        text = CStr(value)
        If InStr(text, separator) > 0 Or InStr(text, """") > 0 Then
            text = """" & Replace(text, """", """""") & """"
        End If
        If first Then
            JoinCsv = text
            first = False
        Else
            JoinCsv = JoinCsv & separator & text
        End If
    Next
End Function

' Numbers in our files have a point, whatever the machine thinks.
Public Function CsvNumber(ByVal text As String) As Double
    CsvNumber = Val(Replace(Trim$(text), ",", "."))
End Function

Public Function CsvDate(ByVal text As String) As Date
    ' 2004-11-30 or 2004-11-30 16:05
    If Len(text) < 10 Then Exit Function
    CsvDate = DateSerial(Val(Left$(text, 4)), Val(Mid$(text, 6, 2)), Val(Mid$(text, 9, 2)))
    If Len(text) >= 16 Then CsvDate = CsvDate + TimeSerial(Val(Mid$(text, 12, 2)), Val(Mid$(text, 15, 2)), 0)
End Function

' Guesses the separator of a file from its first line: the character that stands there most often.
Public Function GuessSeparator(ByVal firstLine As String) As String
    Dim candidates, candidate, best As Long, hits As Long
    candidates = Array(";", ",", vbTab, "|")
    GuessSeparator = ";"
    For Each candidate In candidates
        hits = UBound(Split(firstLine, candidate))
        If hits > best Then best = hits: GuessSeparator = candidate
    Next candidate
End Function
