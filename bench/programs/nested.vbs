count = CLng(WScript.Arguments(0))
k = 0
low = 0
high = 0
few = 0
two = 0
others = 0
For i = 1 To count
  For j = 1 To 100
    k = k + 1
    If k = 5 Then
      k = 0
    End If
    If j <= 50 Then
      low = low + 1
    Else
      high = high + j
    End If
    Select Case k
      Case 0, 1
        few = few + 1
      Case 2
        two = two + i
      Case Else
        others = others + j
    End Select
  Next
Next
WScript.Echo low & " " & high & " " & few & " " & two & " " & others
