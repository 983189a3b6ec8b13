Dim memo
Set memo = WScript.CreateObject("lumenkit.VMemo")

' A new control.
Equal "Text", "VMemo" & vbCrLf, memo.Text
Equal "ForeColor", &H80000008, memo.ForeColor
Equal "Enabled", True, memo.Enabled
Equal "CausesValidation", True, memo.CausesValidation
Equal "FontName", "Courier", memo.FontName
EqualSize "FontSize", CSng(9.75), memo.FontSize
Equal "Locked", False, memo.Locked
Equal "MousePointer", CLng(0), memo.MousePointer
Equal "ScrollBars", CLng(0), memo.ScrollBars
Equal "MaxCharsPerLine", 0, memo.MaxCharsPerLine
Equal "MaxLines", 0, memo.MaxLines

' A container can request the window's handle by a Tag. Here there is no extender with a Tag.
Box "VMEMO pGetMaxLength 438"
Equal "MaxLength", CLng(0), memo.MaxLength

' Each property, assigned and read again.
memo.ForeColor = RGB(255, 0, 0)
Equal "ForeColor", CLng(255), memo.ForeColor
memo.Enabled = False
Equal "Enabled", False, memo.Enabled
memo.CausesValidation = False
Equal "CausesValidation", True, memo.CausesValidation
memo.FontName = "Arial"
Equal "FontName", "Arial", memo.FontName
memo.FontSize = 12
EqualSize "FontSize", CSng(12), memo.FontSize
memo.Locked = True
Equal "Locked", True, memo.Locked
memo.MaxLength = 100
memo.MousePointer = 3
Equal "MousePointer", CLng(3), memo.MousePointer
memo.ScrollBars = 3
Equal "ScrollBars", CLng(3), memo.ScrollBars
memo.Text = "some text"
Equal "Text", "some text", memo.Text
memo.ScrollBars = 1
Equal "ScrollBars", CLng(1), memo.ScrollBars
Equal "Text in another box", "some text", memo.Text
memo.Refresh

' The default member.
Equal "the default member", "some text", "" & memo

' Limits apply to text that is assigned after them.
memo.MaxCharsPerLine = 5
Equal "MaxCharsPerLine", 5, memo.MaxCharsPerLine
Equal "Text", "some text", memo.Text
memo.Text = "abcdefgh" & vbCrLf & "xyz1234567" & vbCrLf & "q"
Equal "Text", "abcde" & vbCrLf & "xyz12345" & vbCrLf & "q", memo.Text
memo.MaxCharsPerLine = 0
memo.MaxLines = 2
Equal "MaxLines", 2, memo.MaxLines
memo.Text = "one" & vbCrLf & "two" & vbCrLf & "three"
Equal "Text", "one" & vbCrLf & "two", memo.Text
memo.MaxLines = 1
memo.Text = "abc" & vbCrLf
Equal "Text", "abc", memo.Text
memo.MaxLines = -5
Equal "MaxLines", -5, memo.MaxLines
memo.Text = ""
Equal "MaxLines", 0, memo.MaxLines
Equal "Text", "", memo.Text

' A page twice as wide takes twice as many characters, plus or minus one: halves are rounded.
Dim columns
memo.PageWidth = 20000
columns = memo.MaxCharsPerLine
If columns < 10 Then WScript.Echo "failed: only " & columns & " characters on a wide page"
memo.PageWidth = 40000
If Abs(memo.MaxCharsPerLine - 2 * columns) > 1 Then
    WScript.Echo "failed: " & columns & " characters, but " & memo.MaxCharsPerLine & " on twice the width"
End If
Box "VMEMO pLetPageWidth 6"
memo.PageWidth = 1E+30
If Abs(memo.MaxCharsPerLine - 2 * columns) > 1 Then WScript.Echo "failed: an overflow changes the limit"

Dim font
Set font = memo.Font
font.Bold = True
Equal "Font.Bold", True, memo.Font.Bold
Equal "Font.Name", "Arial", font.Name
Set font = WScript.CreateObject("lumenkit.VLabel").Font
font.Name = "Courier New"
font.Size = 9
Set memo.Font = font
Equal "FontName", "Courier New", memo.FontName
EqualSize "FontSize", CSng(9), memo.FontSize

' Errors inside the control show an error box, and the script continues.
Box "VMEMO TestMessage 11"
memo.TestMessage
Box "VMEMO pLetScrollBars 340"
memo.ScrollBars = 4
Equal "ScrollBars", CLng(1), memo.ScrollBars

' Misuse raises an error in the script.
On Error Resume Next
columns = memo.PageWidth
Raised "reading what is only written", 438
memo.NoSuchMember = 1
Raised "an unknown property", 438
memo.MaxLines = 32768
Raised "too large a number", 6
memo.MaxLines = "few"
Raised "text for a number", 13
memo.FontSize = "large"
Raised "text for a size", 13
memo.ScrollBars = memo.Font
Raised "a font for a number", 13
Set memo.Font = memo
Raised "a memo for a font", 13
memo.Refresh 1
Raised "an argument for nothing", 450
memo.TestMessage "now"
Raised "an argument for nothing", 450
On Error GoTo 0
Equal "MaxLines", 0, memo.MaxLines

WScript.Echo "all done"
