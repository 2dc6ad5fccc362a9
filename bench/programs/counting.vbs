count = CLng(WScript.Arguments(0))
sum = 0
For i = 1 To count
  sum = sum + i
Next
WScript.Echo sum
