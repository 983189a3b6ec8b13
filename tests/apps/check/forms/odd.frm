VERSION 5.00
Begin VB.Form frmOdd 
   ClientWidth     =   -1
   font            =   "odd.frx":0030
   a line without an equals sign
   Begin Vendor.Grid grdOdd 
      ColumnWidth     =   764,787
      Height          =   1E+300
      Left            =   99999999999
      TabIndex        =   99999
      Top             =   "far"
      Width           =   -15
   End
   Begin lumenkit.VLabel lblOdd 
      Caption         =   "Good"
      Font            =   4
      TabIndex        =   -1
   End
End
