VERSION 5.00
Begin VB.Form frmNames 
   Begin lumenkit.VLabel lblNames 
      Height          =   735
      TabIndex        =   2
      ToolTipText     =   "A tip"
      _ExtentX        =   3413
      _Version        =   458753
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Arial"
      EndProperty
      BeginProperty Fnot {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Arial"
      EndProperty
      CAPTION         =   "Good"
      Captoin         =   "x"
      Caption         =   "|Blod:1|"
      Alignment       =   2
   End
End
