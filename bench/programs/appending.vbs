' text = text & "..." copies the text each time: a long one is built of parts here.
count = CLng(WScript.Arguments(0))
text = ""
part = ""
For i = 1 To count
  part = part & "twenty characters..."
  If i Mod 200 = 0 Then
    text = text & part
    part = ""
  End If
Next
WScript.Echo text & part
