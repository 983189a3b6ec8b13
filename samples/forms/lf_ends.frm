VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmUnix 
   Caption         =   "Line feeds"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin lumenkit.VLabel VLabel1 
      Height          =   255
      Left            =   120
      Top             =   120
      Width           =   2295
      _ExtentX        =   4048
      _ExtentY        =   450
      Caption         =   "LF only"
   End
End
Attribute VB_Name = "frmUnix"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
