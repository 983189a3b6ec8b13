Dim options
Set options = WScript.CreateObject("lumenkit.VOptList")

' A new control. Its list is not yet parsed.
Equal "Enabled", True, options.Enabled
Equal "BorderStyle", 1, options.BorderStyle
Equal "Caption", "Caption", options.Caption
Equal "Contents", "0;Item 0", options.Contents
Equal "ItemAlignment", 0, options.ItemAlignment
Equal "ItemFontBold", False, options.ItemFontBold
Equal "ItemFontItalic", False, options.ItemFontItalic
Equal "ItemForeColor", &H80000012, options.ItemForeColor
Equal "ListIndex", -1, options.ListIndex
Equal "Text", "", options.Text
Equal "Value", "", options.Value
Equal "the type of ItemFontName", vbString, VarType(options.ItemFontName)
Equal "the type of ItemFontSize", vbSingle, VarType(options.ItemFontSize)

' Each property, assigned and read again.
options.Enabled = False
Equal "Enabled", False, options.Enabled
options.Enabled = True
options.BorderStyle = 0
Equal "BorderStyle", 0, options.BorderStyle
options.Caption = "Colours"
Equal "Caption", "Colours", options.Caption
options.Contents = "r;Red|g;Green|b;Blue|g;Grass"
Equal "Contents", "r;Red|g;Green|b;Blue|g;Grass", options.Contents
options.Refresh

' Three properties give the same selection.
Equal "ListIndex", -1, options.ListIndex
options.ListIndex = 2
Equal "ListIndex", 2, options.ListIndex
Equal "Text", "b", options.Text
Equal "Value", "b", options.Value
Equal "the default member", "b", "" & options
options.Text = "G"
Equal "ListIndex", 1, options.ListIndex
Equal "Value", "g", options.Value
options.Text = "violet"
Equal "ListIndex", -1, options.ListIndex
Equal "Value", "", options.Value
options.ListIndex = 0
options.ListIndex = 4
Equal "ListIndex", -1, options.ListIndex
options.ListIndex = 3
options.ListIndex = -2
Equal "ListIndex", -1, options.ListIndex

' The meaning of the contents.
options.ListIndex = 3
options.Contents = "a|b"
Equal "ListIndex", -1, options.ListIndex
options.ListIndex = 1
Equal "Text", "b", options.Text
options.Contents = "1;One||2;Two|"
Equal "ListIndex", 1, options.ListIndex
Equal "Text", "", options.Text
options.ListIndex = 2
Equal "Text", "2", options.Text
options.ListIndex = 3
Equal "ListIndex", -1, options.ListIndex
options.Contents = " 1 ; One"
options.ListIndex = 0
Equal "Text", " 1 ", options.Text
options.Contents = "1;a;b|2;c"

' Captions can only be assigned, one at a time. Captions of items that do not exist are ignored.
options.ItemCaption(1) = "B"
options.ItemCaption(7) = "nobody"
options.ItemCaption(-1) = "nobody"
Equal "Contents", "1;a;b|2;c", options.Contents

Dim font
Set font = options.Font
font.Size = 12
EqualSize "Font.Size", CCur(12), options.Font.Size
Set font = WScript.CreateObject("lumenkit.VMemo").Font
Set options.Font = font
Equal "Font.Name", "Courier", options.Font.Name

' The look of items and the layout can be changed in design mode only. A refusal shows an error box.
Box "VOPTLIST pLetItemAlignment 382"
options.ItemAlignment = 1
Equal "ItemAlignment", 0, options.ItemAlignment
Box "VOPTLIST pLetItemFontBold 382"
options.ItemFontBold = True
Equal "ItemFontBold", False, options.ItemFontBold
Box "VOPTLIST pLetItemFontItalic 382"
options.ItemFontItalic = True
Equal "ItemFontItalic", False, options.ItemFontItalic
Box "VOPTLIST pLetItemFontName 382"
options.ItemFontName = "Arial"
Box "VOPTLIST pLetItemFontSize 382"
options.ItemFontSize = 20
Box "VOPTLIST pLetItemForeColor 382"
options.ItemForeColor = 255
Equal "ItemForeColor", &H80000012, options.ItemForeColor
Box "VOPTLIST pLetLeftMargin 382"
options.LeftMargin = 100
Box "VOPTLIST pGetLeftMargin 393"
Equal "LeftMargin", CSng(0), options.LeftMargin
Box "VOPTLIST pLetSpacing 382"
options.Spacing = 300
Box "VOPTLIST pGetSpacing 393"
Equal "Spacing", CSng(0), options.Spacing
Box "VOPTLIST pLetTopMargin 382"
options.TopMargin = 100
Box "VOPTLIST pGetTopMargin 393"
Equal "TopMargin", CSng(0), options.TopMargin

' Misuse raises an error in the script.
Dim nothingAtAll
On Error Resume Next
options.Value = "r"
Raised "writing what is only read", 438
nothingAtAll = options.ItemCaption(0)
Raised "reading what is only written", 438
options.ItemCaption = "A"
Raised "no index", 449
options.ItemCaption(0, 1) = "A"
Raised "two indices", 450
options.ItemCaption("first") = "A"
Raised "text for an index", 13
options.NoSuchMember = 1
Raised "an unknown property", 438
options.ListIndex = 70000
Raised "too large a number", 6
options.ListIndex = "second"
Raised "text for a number", 13
options.Contents = Null
If Err.Number = 0 Then WScript.Echo "failed: Null is taken for contents": Else Err.Clear
options.Refresh 1
Raised "an argument for nothing", 450
On Error GoTo 0
Equal "Contents", "1;a;b|2;c", options.Contents

WScript.Echo "all done"
