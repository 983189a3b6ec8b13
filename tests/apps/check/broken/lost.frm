VERSION 5.00
Begin VB.Form frmLost 
   Begin lumenkit.VMemo memLost 
      Text            =   $"lost.frx":0000
   End
End
