Dim label
Set label = WScript.CreateObject("lumenkit.VLabel")
label.NoSuchMember
WScript.Echo "all done"
