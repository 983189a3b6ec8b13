VERSION 5.00
Begin VB.Form frmArray 
   Caption         =   "A control array"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.OptionButton optSize 
      Caption         =   "Choice 0"
      Height          =   255
      Index           =   0
      Left            =   240
      TabIndex        =   0
      Top             =   120
      Value           =   -1  'True
      Width           =   1695
   End
   Begin VB.OptionButton optSize 
      Caption         =   "Choice 1"
      Height          =   255
      Index           =   1
      Left            =   240
      TabIndex        =   1
      Top             =   480
      Value           =   0   'False
      Width           =   1695
   End
   Begin VB.OptionButton optSize 
      Caption         =   "Choice 2"
      Height          =   255
      Index           =   2
      Left            =   240
      TabIndex        =   2
      Top             =   840
      Value           =   0   'False
      Width           =   1695
   End
   Begin VB.OptionButton optSize 
      Caption         =   "Choice 3"
      Height          =   255
      Index           =   3
      Left            =   240
      TabIndex        =   3
      Top             =   1200
      Value           =   0   'False
      Width           =   1695
   End
   Begin VB.OptionButton optSize 
      Caption         =   "Choice 4"
      Height          =   255
      Index           =   4
      Left            =   240
      TabIndex        =   4
      Top             =   1560
      Value           =   0   'False
      Width           =   1695
   End
End
Attribute VB_Name = "frmArray"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
