VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmMemos 
   Begin lumenkit.VMemo memChars 
      Text            =   "123456"
      MaxCharsPerLine =   5
   End
   Begin lumenkit.VMemo memBlanks 
      Text            =   "12345  "
      MaxCharsPerLine =   5
   End
   Begin lumenkit.VMemo memLines 
      Text            =   $"memos.frx":0000
      MaxLines        =   2
   End
   Begin lumenkit.VMemo memBoth 
      Text            =   $"memos.frx":0010
      MaxCharsPerLine =   7
      MaxLines        =   1
   End
   Begin lumenkit.VMemo memFits 
      FontName        =   "Courier"
      FontSize        =   9.75
      Text            =   "12345"
      MaxCharsPerLine =   5
      MaxLines        =   1
   End
   Begin lumenkit.VMemo memUnlimited 
      Text            =   "123456789"
      MaxCharsPerLine =   -5
      MaxLines        =   0
   End
End
