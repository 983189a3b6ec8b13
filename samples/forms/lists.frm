VERSION 5.00
Begin VB.Form frmLists 
   Caption         =   "Lists"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.ListBox lstColors 
      Height          =   1035
      ItemData        =   "lists.frx":0000
      Left            =   120
      List            =   "lists.frx":000E
      TabIndex        =   0
      Top             =   120
      Width           =   1935
   End
   Begin VB.ComboBox cboEmpty 
      Height          =   315
      ItemData        =   "lists.frx":0024
      Left            =   2280
      List            =   "lists.frx":0026
      TabIndex        =   1
      Text            =   "Combo1"
      Top             =   120
      Width           =   1935
   End
End
Attribute VB_Name = "frmLists"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
