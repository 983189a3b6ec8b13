' Assigns texts that are too long, which the memo cuts to its limits:  cscript //nologo memo.vbs
Option Explicit

Dim memo
Set memo = WScript.CreateObject("lumenkit.VMemo")
memo.MaxCharsPerLine = 10
memo.MaxLines = 2
memo.Text = "A line that is too long"
WScript.Echo memo.Text
memo.Text = "one" & vbCrLf & "two" & vbCrLf & "three"
WScript.Echo Replace(memo.Text, vbCrLf, " / ")

' The default member is the text.
memo = "again"
WScript.Echo memo
WScript.Echo "done"
