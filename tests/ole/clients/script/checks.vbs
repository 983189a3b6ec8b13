Option Explicit

' What all scripts use. A type is checked too: 1 is an Integer, CLng(1) a Long.
Sub Equal(what, expected, found)
    If VarType(expected) <> VarType(found) Then
        WScript.Echo "failed: " & what & " is a " & TypeName(found) & ", not a " & TypeName(expected)
    ElseIf expected <> found Then
        WScript.Echo "failed: " & what & " is [" & found & "], not [" & expected & "]"
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

