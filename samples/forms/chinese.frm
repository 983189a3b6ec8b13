VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frm订单 
   Caption         =   "订单"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   BeginProperty Font 
      Name            =   "宋体"
      Size            =   9
      Charset         =   134
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin lumenkit.VLabel VLabel1 
      Height          =   375
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   661
      Caption         =   "|B:1|乗亅|B:0| 价格："
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   1215
      Left            =   120
      TabIndex        =   1
      Top             =   600
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   2143
      Text            =   $"chinese.frx":0000
   End
   Begin lumenkit.VOptList VOptList1 
      Height          =   1095
      Left            =   120
      TabIndex        =   2
      Top             =   1920
      Width           =   4335
      _ExtentX        =   7646
      _ExtentY        =   1931
      Contents        =   "1;是|2;否|3;也许"
   End
End
Attribute VB_Name = "frm订单"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
' � 100
