VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmLabels 
   Caption         =   "|Blod:1| is a form's own caption"
   Begin lumenkit.VLabel lblUnknown 
      Index           =   2
      Caption         =   "Say |Q|""hi""|Q| |Blod:1|loud"
   End
   Begin lumenkit.VLabel lblUnterminated 
      Caption         =   "a |b:1 and on|CR||b:1|c|b:0|"
   End
   Begin VB.Frame fraInner 
      Caption         =   "|Blod:1| is a frame's"
      Begin lumenkit.VLabel lblLoneBars 
         Caption         =   "a | b|CR|c || d |e| f|CR|g |b=1| h"
      End
   End
   Begin lumenkit.VLabel lblUnderline 
      Caption         =   "|U:1|x|u:0|"
   End
   Begin lumenkit.VLabel lblValues 
      Caption         =   "|B:yes|a|i:Ture|b|Fore:red|c|before:much|d|b:TRUE|e|i:0|"
   End
   Begin lumenkit.VLabel lblSizes 
      Caption         =   "|size:1|a|size:.5|b|size:big|c|size:1.5|d"
   End
   Begin lumenkit.VLabel lblColors 
      Caption         =   "|Fore:300,-1,0|a|color:0,128,255|b|color:256|c|Fore:99999999999,0,0|"
   End
   Begin lumenkit.VLabel lblNumbers 
      Caption         =   "|size:1e999|a|before:+1e39|b"
   End
   Begin lumenkit.VLabel lblElsewhere 
      Caption         =   $"labels.frx":0000
   End
End
Attribute VB_Name = "frmLabels"
