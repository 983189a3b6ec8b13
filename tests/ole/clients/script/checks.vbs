Option Explicit

' Objects are made by WScript.CreateObject: Wine's own CreateObject wants to give an object that takes
' a site one that cscript has not got.

' What all scripts use. A type is checked too: 1 is an Integer, CLng(1) a Long.
Sub Equal(what, expected, found)
    If VarType(expected) <> VarType(found) Then
        WScript.Echo "failed: " & what & " is a " & TypeName(found) & ", not a " & TypeName(expected)
    ElseIf expected <> found Then
        WScript.Echo "failed: " & what & " is [" & found & "], not [" & expected & "]"
    End If
End Sub

' Sizes of fonts are those of the screen's nearest font: within a pixel of what was asked for.
Sub EqualSize(what, expected, found)
    Equal "the type of " & what, VarType(expected), VarType(found)
    If Abs(expected - found) > 0.75 Then
        WScript.Echo "failed: " & what & " is [" & found & "], not about [" & expected & "]"
    End If
End Sub

' Right after what should raise the error, under On Error Resume Next.
Sub Raised(what, number)
    If Err.Number <> number Then
        WScript.Echo "failed: " & what & " raised " & Err.Number & ", not " & number
    ElseIf Err.Description = "" Or Err.Source = "" Then
        WScript.Echo "failed: " & what & " is not explained [" & Err.Source & "]"
    End If
    Err.Clear
End Sub

Sub Box(text)
    WScript.Echo "box: " & text
End Sub

