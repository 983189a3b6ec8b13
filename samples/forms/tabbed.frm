VERSION 5.00
Object = "{BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0"; "TABCTL32.OCX"
Begin VB.Form frmTabbed 
   Caption         =   "Pages"
   ClientHeight    =   4335
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   5415
   LinkTopic       =   "Form1"
   ScaleHeight     =   4335
   ScaleWidth      =   5415
   StartUpPosition =   3  'Windows Default
   Begin TabDlg.SSTab tabOrder 
      Height          =   2415
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   5175
      _ExtentX        =   9128
      _ExtentY        =   4260
      _Version        =   393216
      Tabs            =   4
      Tab             =   1
      TabsPerRow      =   4
      TabHeight       =   520
      TabCaption(0)   =   "&Customer"
      Tab(0).ControlEnabled=   0   'False
      Tab(0).Control(0)=   "txtName"
      Tab(0).Control(1)=   "lblName"
      Tab(0).ControlCount=   2
      TabCaption(1)   =   "&Goods"
      Tab(1).ControlEnabled=   -1  'True
      Tab(1).Control(0)=   "fraGoods"
      Tab(1).Control(1)=   "txtCount"
      Tab(1).ControlCount=   2
      TabCaption(2)   =   "&Payment"
      Tab(2).ControlEnabled=   0   'False
      Tab(2).Control(0)=   "optPay(0)"
      Tab(2).Control(1)=   "optPay(1)"
      Tab(2).Control(2)=   "linPay"
      Tab(2).ControlCount=   3
      TabCaption(3)   =   "Closed"
      TabEnabled(3)   =   0   'False
      Tab(3).ControlEnabled=   0   'False
      Tab(3).ControlCount=   0
      Begin VB.TextBox txtName 
         Height          =   315
         Left            =   -73680
         TabIndex        =   2
         Top             =   600
         Width           =   2415
         Text            =   "Miller"
      End
      Begin VB.Frame fraGoods 
         Caption         =   "Goods"
         Height          =   1455
         Left            =   240
         TabIndex        =   5
         Top             =   600
         Width           =   2415
         Begin VB.CheckBox chkGift 
            Caption         =   "Gift"
            Height          =   255
            Left            =   240
            TabIndex        =   6
            Top             =   360
            Width           =   1695
         End
      End
      Begin VB.TextBox txtCount 
         Height          =   315
         Left            =   2880
         TabIndex        =   4
         Top             =   720
         Width           =   1215
         Text            =   "12"
      End
      Begin VB.OptionButton optPay 
         Caption         =   "Cash"
         Height          =   255
         Index           =   0
         Left            =   -74760
         TabIndex        =   7
         Top             =   600
         Width           =   1695
      End
      Begin VB.OptionButton optPay 
         Caption         =   "Card"
         Height          =   255
         Index           =   1
         Left            =   -74760
         TabIndex        =   8
         Top             =   960
         Width           =   1695
      End
      Begin VB.Label lblName 
         Caption         =   "&Name:"
         Height          =   255
         Left            =   -74760
         TabIndex        =   1
         Top             =   630
         Width           =   975
      End
      Begin VB.Line linPay 
         X1              =   -74760
         X2              =   -72000
         Y1              =   1440
         Y2              =   1440
      End
   End
   Begin TabDlg.SSTab tabRows 
      Height          =   1575
      Left            =   120
      TabIndex        =   9
      Top             =   2640
      Width           =   2535
      _ExtentX        =   4471
      _ExtentY        =   2778
      _Version        =   393216
      Style           =   1
      Tabs            =   3
      TabsPerRow      =   2
      TabHeight       =   520
      TabCaption(0)   =   "One"
      TabCaption(1)   =   "Two"
      TabCaption(2)   =   "Three"
   End
   Begin TabDlg.SSTab tabFoot 
      Height          =   1575
      Left            =   2760
      TabIndex        =   10
      Top             =   2640
      Width           =   1215
      _ExtentX        =   2143
      _ExtentY        =   2778
      _Version        =   393216
      TabOrientation  =   1
      Tabs            =   2
      Tab             =   1
      TabsPerRow      =   2
      TabHeight       =   520
      TabCaption(0)   =   "A"
      TabCaption(1)   =   "B"
   End
   Begin TabDlg.SSTab tabSide 
      Height          =   1575
      Left            =   4080
      TabIndex        =   11
      Top             =   2640
      Width           =   1215
      _ExtentX        =   2143
      _ExtentY        =   2778
      _Version        =   393216
      TabOrientation  =   2
      Tabs            =   2
      TabsPerRow      =   2
      TabHeight       =   520
      TabCaption(0)   =   "Left"
      TabCaption(1)   =   "Side"
   End
End
Attribute VB_Name = "frmTabbed"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
