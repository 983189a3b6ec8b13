VERSION 5.00
Object = "{6B1A3F52-8C0D-4E7B-9A44-2D5C8E7F1A90}#7.1#0"; "lumenkit.ocx"
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
