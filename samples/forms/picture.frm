VERSION 5.00
Begin VB.Form frmPicture 
   Caption         =   "Picture"
   ClientHeight    =   3495
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4695
   Icon            =   "picture.frx":0000
   LinkTopic       =   "Form1"
   Picture         =   "picture.frx":048A
   ScaleHeight     =   3495
   ScaleWidth      =   4695
   StartUpPosition =   3  'Windows Default
   Begin VB.CommandButton cmdOver 
      Caption         =   "In front"
      Height          =   375
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   1215
   End
   Begin VB.Label lblOver 
      BackStyle       =   0  'Transparent
      Caption         =   "A transparent label"
      Height          =   255
      Left            =   240
      TabIndex        =   1
      Top             =   840
      Width           =   1695
   End
   Begin VB.PictureBox picBox 
      Height          =   735
      Left            =   3240
      Picture         =   "picture.frx":11E0C
      TabIndex        =   2
      Top             =   240
      Width           =   1215
   End
   Begin Some.Tab tabUnknown 
      Height          =   1335
      Left            =   120
      TabIndex        =   4
      Top             =   2040
      Width           =   2895
      Begin VB.TextBox txtInside 
         Height          =   315
         Left            =   120
         TabIndex        =   3
         Text            =   "Inside"
         Top             =   720
         Width           =   1815
      End
   End
   Begin Some.Tab tabFull 
      Height          =   1335
      Left            =   3120
      TabIndex        =   6
      Top             =   2040
      Width           =   1455
      Begin VB.Frame fraInside 
         Caption         =   "Inside"
         Height          =   1215
         Left            =   60
         TabIndex        =   5
         Top             =   60
         Width           =   1335
      End
   End
End
Attribute VB_Name = "frmPicture"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
