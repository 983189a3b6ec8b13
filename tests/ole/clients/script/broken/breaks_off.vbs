Dim label
Set label = CreateObject("lumenkit.VLabel")
label.NoSuchMember
WScript.Echo "all done"
