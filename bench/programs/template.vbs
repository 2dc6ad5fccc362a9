count = CLng(WScript.Arguments(0))
For row = 1 To count
  WScript.Echo "line " & row & " of the table"
Next
