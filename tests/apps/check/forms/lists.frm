VERSION 5.00
Begin VB.Form frmLists 
   Begin LUMENKIT.VOptList optDuplicates 
      Contents        =   "1;One|2;""Two""|1;Uno|B|b;c"
   End
   Begin lumenkit.VOptList optAbove 
      Contents        =   "1;One|2;Two|3;Three"
      ListIndex       =   3
   End
   Begin lumenkit.VOptList optBelow 
      ListIndex       =   -2
   End
   Begin lumenkit.VOptList optDefault 
      ListIndex       =   1
   End
   Begin lumenkit.VOptList optWord 
      ListIndex       =   "two"
   End
   Begin lumenkit.VOptList optLarge 
      ListIndex       =   99999
   End
   Begin lumenkit.VOptList optNone 
      Contents        =   "1;One|2;Two"
      ListIndex       =   -1
   End
   Begin other.VOptList optOther 
      ListIndex       =   9
   End
End
