VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmUnnamed 
   Begin lumenkit.VMemo memSecond 
      TabIndex        =   2
   End
   Begin lumenkit.VMemo memNotes 
      TabIndex        =   1
   End
   Begin VB.Label lblNotes 
      Caption         =   "&Notes"
      TabIndex        =   0
   End
   Begin lumenkit.VLabel lblBlank 
      Caption         =   "|b:1| |CR| "
      TabIndex        =   3
   End
   Begin lumenkit.VMemo memBlank 
      TabIndex        =   4
   End
   Begin lumenkit.VOptList optBorderless 
      BorderStyle     =   0
      Caption         =   "Size"
      TabIndex        =   5
   End
   Begin lumenkit.VOptList optEmpty 
      Caption         =   " "
      TabIndex        =   6
   End
   Begin lumenkit.VLabel lblSize 
      Caption         =   "|b:1|Size"
      TabIndex        =   7
   End
   Begin lumenkit.VOptList optLabelled 
      BorderStyle     =   0
      TabIndex        =   8
   End
   Begin VB.Label lblOutside 
      Caption         =   "Outside"
      TabIndex        =   9
   End
   Begin VB.PictureBox picInside 
      Begin lumenkit.VMemo memInside 
         TabIndex        =   10
      End
   End
End
