' Fills an option list and selects its items:  cscript //nologo options.vbs
Option Explicit

Dim options, index
Set options = WScript.CreateObject("lumenkit.VOptList")
options.Contents = "s;Small|m;Medium|l;Large"
For index = -1 To 2
    options.ListIndex = index
    WScript.Echo options.ListIndex & ": " & options.Value
Next
options.Text = "m"
WScript.Echo options.ListIndex & ": " & options.Value

' The caption of an item can be assigned but not read.
options.ItemCaption(1) = "In between"
On Error Resume Next
WScript.Echo options.ItemCaption(1)
WScript.Echo "reading an item's caption: error " & Err.Number
On Error Goto 0
WScript.Echo "done"
