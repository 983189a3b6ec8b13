VERSION 5.00
Begin VB.Form frmGauges 
   Caption         =   "User controls of the program"
   ClientHeight    =   2895
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   3960
   LinkTopic       =   "Form1"
   ScaleHeight     =   2895
   ScaleWidth      =   3960
   StartUpPosition =   3  'Windows Default
   Begin Gauges.Gauge gagLoad 
      Height          =   1200
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   2400
      _ExtentX        =   4233
      _ExtentY        =   2117
   End
   Begin Gauge gagSmall 
      Height          =   600
      Left            =   2640
      TabIndex        =   1
      Top             =   120
      Width           =   1200
   End
   Begin Gauges.Panel pnlBoth 
      Height          =   1335
      Left            =   120
      TabIndex        =   2
      Top             =   1440
      Width           =   3720
   End
   Begin Gauges.Missing misThing 
      Height          =   480
      Left            =   2640
      TabIndex        =   3
      Top             =   840
      Width           =   1200
   End
End
Attribute VB_Name = "frmGauges"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
