Dim memo
Set memo = CreateObject("lumenkit.VMemo")
memo.TestMessage
WScript.Echo "all done"
