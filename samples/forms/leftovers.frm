VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmLeft 
   Caption         =   "Leftovers"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin lumenkit.VMemo VMemo1 
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"leftovers.frx":0006
   End
   Begin lumenkit.VMemo VMemo2 
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"leftovers.frx":0128
   End
End
Attribute VB_Name = "frmLeft"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
