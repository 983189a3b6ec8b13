Dim label
Set label = WScript.CreateObject("lumenkit.VLabel")

' A new control.
Equal "BackColor", &H80000005, label.BackColor
Equal "ForeColor", &H80000012, label.ForeColor
Equal "Enabled", True, label.Enabled
Equal "BorderStyle", 0, label.BorderStyle
Equal "FontTransparent", True, label.FontTransparent
Equal "MousePointer", 0, label.MousePointer
Equal "Caption", "VLabel", label.Caption
Equal "WordWrap", False, label.WordWrap
Equal "BulletIndent", 0, label.BulletIndent
Equal "BulletPrefix", "", label.BulletPrefix
Equal "AutoSize", False, label.AutoSize
Equal "BackStyle", 0, label.BackStyle

' Each property, assigned and read again.
label.BackColor = RGB(1, 2, 3)
Equal "BackColor", CLng(1 + 2 * 256 + 3 * 65536), label.BackColor
label.ForeColor = &H80000008
Equal "ForeColor", &H80000008, label.ForeColor
label.Enabled = False
Equal "Enabled", False, label.Enabled
label.BorderStyle = 1
Equal "BorderStyle", 1, label.BorderStyle
label.FontTransparent = False
Equal "FontTransparent", False, label.FontTransparent
label.MousePointer = 11
Equal "MousePointer", 11, label.MousePointer
label.Caption = "|B|bold||b| plain"
Equal "Caption", "|B|bold||b| plain", label.Caption
label.WordWrap = True
Equal "WordWrap", True, label.WordWrap
label.BulletIndent = 360
Equal "BulletIndent", 360, label.BulletIndent
label.BulletPrefix = "* "
Equal "BulletPrefix", "* ", label.BulletPrefix
label.AutoSize = True
Equal "AutoSize", True, label.AutoSize
label.BackStyle = 1
Equal "BackStyle", 1, label.BackStyle
label.Refresh

' The default member. Names are found in any case.
Equal "the default member", "|B|bold||b| plain", "" & label
label.cAPTION = "x"
Equal "CAPTION", "x", label.CAPTION

' Conversions: numbers to text, text to numbers, halves to the even neighbour, all but 0 to True.
label.Caption = 12
Equal "Caption", "12", label.Caption
label.BulletIndent = "34"
Equal "BulletIndent", 34, label.BulletIndent
label.BulletIndent = 2.5
Equal "BulletIndent", 2, label.BulletIndent
label.BulletIndent = 3.5
Equal "BulletIndent", 4, label.BulletIndent
label.WordWrap = 5
Equal "WordWrap", True, label.WordWrap

' All controls and variables with the font share one object.
Dim font, other
Set font = label.Font
font.Name = "Arial"
font.Size = 12
font.Bold = True
font.Italic = True
Equal "Font.Name", "Arial", label.Font.Name
EqualSize "Font.Size", CCur(12), label.Font.Size
Equal "Font.Bold", True, label.Font.Bold
Equal "Font.Italic", True, label.Font.Italic
Set other = WScript.CreateObject("lumenkit.VLabel")
Set other.Font = label.Font
other.Font.Size = 18
EqualSize "the shared font's size", CCur(18), label.Font.Size
Equal "whether it is the same", True, other.Font Is font
Set font = WScript.CreateObject("lumenkit.VLabel").Font
font.Name = "Arial"
Set label.Font = font
font.Size = 9
EqualSize "Font.Size", CCur(9), label.Font.Size
EqualSize "the other's font size", CCur(18), other.Font.Size

' GetProperty takes a name in any case, and returns nothing for a name that is not a size.
Dim width, height
label.WordWrap = False
label.BulletIndent = 0
label.BulletPrefix = ""
label.Caption = "A caption that is a good deal longer than the control is wide, since it does not end soon"
width = label.GetProperty("width")
Equal "GetProperty(WIDTH)", width, label.GetProperty("WIDTH")
Equal "GetProperty(left)", True, IsEmpty(label.GetProperty("left"))
label.SetIdealSize
If label.GetProperty("Width") <= width Then WScript.Echo "failed: a long caption does not widen"
width = label.GetProperty("Width")
height = label.GetProperty("Height")
label.SetIdealSize
Equal "the width, fitted twice", width, label.GetProperty("Width")
Equal "the height, fitted twice", height, label.GetProperty("Height")
label.Caption = "short"
label.WordWrap = True
label.SetIdealSize
Equal "the width while wrapping", width, label.GetProperty("Width")
label.WordWrap = False
label.SetIdealSize
If label.GetProperty("Width") >= width Then WScript.Echo "failed: a short caption does not narrow"
label.Caption = "one|CR|two|CR|three"
label.SetIdealSize
If label.GetProperty("Height") <= height Then WScript.Echo "failed: three lines are not higher than one"

Dim wanted
wanted = "to |Q|verify|Q|"
label.Test wanted
Equal "Caption", "to |Q|verify|Q|", label.Caption
Equal "the tested text", "to |Q|verify|Q|", wanted

' Values that the surface refuses show an error box, and the script continues.
Box "VLABEL pLetBorderStyle 380"
label.BorderStyle = 2
Equal "BorderStyle", 1, label.BorderStyle
Box "VLABEL pLetMousePointer 380"
label.MousePointer = 16
Equal "MousePointer", 11, label.MousePointer

' Misuse raises an error in the script.
On Error Resume Next
label.NoSuchMember
Raised "an unknown method", 438
label.NoSuchMember = 1
Raised "an unknown property", 438
width = label.NoSuchMember
Raised "reading an unknown property", 438
label.BulletIndent = 40000
Raised "too large a number", 6
label.BulletIndent = "many"
Raised "text for a number", 13
Set label.Font = Nothing
Raised "no font", 13
Equal "Font.Name", "Arial", label.Font.Name
label.WordWrap = "perhaps"
Raised "text for a Boolean", 13
label.Enabled = label
Raised "a label for a Boolean", 13
Set label.Font = label
Raised "a label for a font", 13
label.GetProperty
Raised "too few arguments", 449
label.GetProperty "width", 1
Raised "too many arguments", 450
label.Refresh 1
Raised "an argument for nothing", 450
width = label.SetIdealSize(1)
Raised "an argument for nothing", 450
On Error GoTo 0
Equal "BulletIndent", 0, label.BulletIndent
Equal "Font.Name", "Arial", label.Font.Name

WScript.Echo "all done"
