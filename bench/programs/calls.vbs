count = CLng(WScript.Arguments(0))
total = 0
Sub Multiply(left_value, right_value)
  total = total + left_value * right_value
End Sub
For i = 1 To count
  Multiply i, 2
Next
WScript.Echo total
