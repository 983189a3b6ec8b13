VERSION 5.00
Begin VB.Form frmDrawn 
   Begin lumenkit.VLabel lblLarge 
      Caption         =   "Large|size:5000|letters"
      MousePointer    =   55
   End
End
