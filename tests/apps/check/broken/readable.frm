VERSION 5.00
Begin VB.Form frmReadable 
   Begin lumenkit.VLabel lblReadable 
      Caption         =   "|Blod:1|"
   End
End
