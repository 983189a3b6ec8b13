VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmDescribed 
   Caption         =   "Described"
   ClientHeight    =   4800
   ClientWidth     =   7200
   ScaleHeight     =   4800
   ScaleWidth      =   7200
   Begin VB.Line linRule 
      X1              =   0
      X2              =   7200
      Y1              =   2400
      Y2              =   2400
   End
   Begin lumenkit.VMemo memHidden 
      Height          =   495
      Left            =   3600
      TabIndex        =   8
      Top             =   3600
      Visible         =   0   'False
      Width           =   3000
      Text            =   "hidden"
   End
   Begin VB.TextBox txtPay 
      Height          =   315
      Left            =   3600
      TabIndex        =   7
      Text            =   "cash"
      Top             =   1920
      Width           =   3000
   End
   Begin VB.Label lblPay 
      Caption         =   "Pay by"
      Height          =   255
      Left            =   3600
      TabIndex        =   6
      Top             =   1680
      Width           =   3000
   End
   Begin VB.Frame fraAddress 
      Caption         =   "&Address"
      Height          =   1455
      Left            =   3600
      TabIndex        =   3
      Top             =   120
      Width           =   3375
      Begin lumenkit.VMemo memStreet 
         Height          =   495
         Left            =   120
         TabIndex        =   5
         Top             =   720
         Width           =   3000
         Locked          =   -1  'True
         MaxLines        =   1
         ScrollBars      =   2
         Text            =   "Long Lane"
      End
      Begin lumenkit.VLabel lblStreet 
         Height          =   255
         Left            =   120
         TabIndex        =   4
         Top             =   360
         Width           =   3000
         Caption         =   "|b:1|Street|b:0| and"
         WordWrap        =   -1  'True
      End
   End
   Begin lumenkit.VOptList optColour 
      Height          =   975
      Left            =   120
      TabIndex        =   2
      Top             =   480
      Width           =   3000
      BorderStyle     =   0
      Caption         =   "never shown"
      Contents        =   "r;&Red|g;|b;Blue"
   End
   Begin VB.Label lblColour 
      Caption         =   "&Colour"
      Height          =   255
      Left            =   120
      TabIndex        =   1
      Top             =   120
      Width           =   3000
   End
   Begin lumenkit.VMemo memNameless 
      Height          =   495
      Left            =   120
      TabIndex        =   0
      Top             =   1800
      Width           =   3000
      Text            =   "first"
   End
End
Attribute VB_Name = "frmDescribed"
