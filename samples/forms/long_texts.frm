VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmLong 
   Caption         =   "Long texts"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin lumenkit.VMemo VMemo1 
      Height          =   495
      Index           =   0
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"long_texts.frx":0000
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   495
      Index           =   1
      Left            =   120
      TabIndex        =   1
      Top             =   720
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"long_texts.frx":0001
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   495
      Index           =   2
      Left            =   120
      TabIndex        =   2
      Top             =   1320
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"long_texts.frx":0100
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   495
      Index           =   3
      Left            =   120
      TabIndex        =   3
      Top             =   1920
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"long_texts.frx":0202
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   495
      Index           =   4
      Left            =   120
      TabIndex        =   4
      Top             =   2520
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   873
      Text            =   $"long_texts.frx":10204
   End
End
Attribute VB_Name = "frmLong"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
