Equal "one", 1, 2
WScript.Echo "all done"
