VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmAll 
   Caption         =   "All three"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.Frame fraLeft 
      Caption         =   "Left"
      Height          =   2895
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   2175
      Begin VB.PictureBox picInner 
         BorderStyle     =   0  'None
         Height          =   2535
         Left            =   120
         ScaleHeight     =   2535
         ScaleWidth      =   1935
         TabIndex        =   1
         Top             =   240
         Width           =   1935
         Begin lumenkit.VLabel VLabel1 
            Height          =   735
            Left            =   0
            TabIndex        =   2
            Top             =   0
            Width           =   1935
            _ExtentX        =   3413
            _ExtentY        =   1296
            BackStyle       =   1
            Caption         =   "In a |i|box|n| in a frame"
         End
         Begin lumenkit.VOptList VOptList1 
            Height          =   1575
            Left            =   0
            TabIndex        =   3
            Top             =   840
            Width           =   1935
            _ExtentX        =   3413
            _ExtentY        =   2778
            BorderStyle     =   0
            Contents        =   "1;One|2;Two|3;Three"
         End
      End
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   2775
      Left            =   2400
      TabIndex        =   4
      Top             =   240
      Width           =   2175
      _ExtentX        =   3836
      _ExtentY        =   4895
      Locked          =   -1  'True
      Text            =   "One line"
   End
End
Attribute VB_Name = "frmAll"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
