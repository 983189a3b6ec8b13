VERSION 5.00
Begin VB.Form frmTwins 
   Begin lumenkit.VLabel lblOne 
   End
   Begin lumenkit.VLabel lblone 
   End
   Begin lumenkit.VLabel lblArray 
      Index           =   0
   End
   Begin lumenkit.VLabel LBLARRAY 
      Index           =   1
   End
   Begin lumenkit.VLabel lblArray 
      Index           =   0
   End
End
