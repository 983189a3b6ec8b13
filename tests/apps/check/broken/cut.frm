VERSION 5.00
Begin VB.Form frmCut 
   Begin lumenkit.VLabel lblCut 
      Caption         =   "|Blod:1|
