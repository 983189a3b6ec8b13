VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmGrüße 
   Caption         =   "Schöne Grüße – 5 €"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin lumenkit.VMemo Übersicht 
      Height          =   1215
      Left            =   120
      TabIndex        =   0
      ToolTipText     =   "Größe ändern…"
      Top             =   120
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   2143
      Text            =   $"umlauts.frx":0000
   End
End
Attribute VB_Name = "frmGrüße"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
' Straße, naïve, œuvre
