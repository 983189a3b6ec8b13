VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmGood 
   Begin lumenkit.VLabel lblGood 
      Caption         =   "|B:1|Good|Bold:False| |Q|and|Q||CR||before:60|* |Fore:0,,255|green|size:9.5||ITALS:TRUE|x"
      BulletPrefix    =   "* "
   End
   Begin lumenkit.VLabel lblDefault 
   End
   Begin lumenkit.VMemo memGood 
      Text            =   "12345"
      MaxCharsPerLine =   5
      MaxLines        =   1
   End
   Begin lumenkit.VOptList optGood 
      Contents        =   "1;One||2;Two|"
      ListIndex       =   2
   End
   Begin VB.Label lblOther 
      Caption         =   "|Blod:1|"
      Captoin         =   "x"
   End
End
