VERSION 5.00
Begin VB.UserControl Panel 
   BackColor       =   &H00C0FFC0&
   ClientHeight    =   1335
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   3720
   ScaleHeight     =   1335
   ScaleWidth      =   3720
   Begin VB.Label lblTitle 
      Caption         =   "A gauge in a panel"
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   90
      Width           =   2000
   End
   Begin Gauges.Gauge gagInner 
      Height          =   600
      Left            =   120
      TabIndex        =   1
      Top             =   360
      Width           =   2400
   End
   Begin VB.CommandButton cmdReset 
      Caption         =   "Reset"
      Height          =   375
      Left            =   2640
      TabIndex        =   2
      Top             =   360
      Width           =   960
   End
   Begin VB.Timer tmrPoll 
      Left            =   2640
      Top             =   840
   End
End
Attribute VB_Name = "Panel"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = True
Option Explicit
