Dim memo
Set memo = WScript.CreateObject("lumenkit.VMemo")
memo.TestMessage
WScript.Echo "all done"
