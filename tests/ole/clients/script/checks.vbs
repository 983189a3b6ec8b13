Option Explicit

' Objects are created by WScript.CreateObject. Wine's CreateObject tries to give the object a site,
' which cscript does not have.

' Shared by all scripts. The type is compared too: 1 is an Integer, CLng(1) a Long.
Sub Equal(what, expected, found)
    If VarType(expected) <> VarType(found) Then
        WScript.Echo "failed: " & what & " is a " & TypeName(found) & ", not a " & TypeName(expected)
    ElseIf expected <> found Then
        WScript.Echo "failed: " & what & " is [" & found & "], not [" & expected & "]"
    End If
End Sub

' A font takes the nearest size of the screen, so its size may differ by a pixel.
Sub EqualSize(what, expected, found)
    Equal "the type of " & what, VarType(expected), VarType(found)
    If Abs(expected - found) > 0.75 Then
        WScript.Echo "failed: " & what & " is [" & found & "], not about [" & expected & "]"
    End If
End Sub

' Call this right after the statement that must raise the error, under On Error Resume Next.
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

