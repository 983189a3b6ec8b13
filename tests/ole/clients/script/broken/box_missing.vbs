Box "VMEMO TestMessage 11"
WScript.Echo "all done"
