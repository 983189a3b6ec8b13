VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmDrawn 
   Caption         =   "Lines and shapes"
   ClientHeight    =   2895
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   2895
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.CommandButton cmdOk 
      Caption         =   "OK"
      Default         =   -1  'True
      Height          =   375
      Left            =   2040
      TabIndex        =   0
      Top             =   2400
      Width           =   1215
   End
   Begin VB.CommandButton cmdCancel 
      Cancel          =   -1  'True
      Caption         =   "Cancel"
      Height          =   375
      Left            =   3360
      TabIndex        =   1
      Top             =   2400
      Width           =   1215
   End
   Begin lumenkit.VLabel VLabel1 
      Height          =   495
      Left            =   240
      TabIndex        =   2
      Top             =   240
      Width           =   4215
      _ExtentX        =   7435
      _ExtentY        =   873
      Caption         =   "|B:1|Total:|B:0| 1,250"
   End
   Begin VB.Line linAbove 
      BorderColor     =   &H80000010&
      X1              =   120
      X2              =   4560
      Y1              =   2250
      Y2              =   2250
   End
   Begin VB.Line linBelow 
      BorderColor     =   &H80000014&
      X1              =   120
      X2              =   4560
      Y1              =   2265
      Y2              =   2265
   End
   Begin VB.Line linDown 
      BorderColor     =   &H000000FF&
      BorderWidth     =   2
      X1              =   3360
      X2              =   4440
      Y1              =   960
      Y2              =   2040
   End
   Begin VB.Line linUp 
      BorderColor     =   &H000000FF&
      BorderStyle     =   2  'Dash
      X1              =   3360
      X2              =   4440
      Y1              =   2040
      Y2              =   960
   End
   Begin VB.Shape shpRound 
      BackColor       =   &H00FFFFFF&
      BackStyle       =   1  'Opaque
      BorderColor     =   &H00800000&
      BorderWidth     =   2
      Height          =   615
      Left            =   120
      Shape           =   4  'Rounded Rectangle
      Top             =   180
      Width           =   4440
   End
   Begin VB.Shape shpCircle 
      FillColor       =   &H0000C000&
      FillStyle       =   0  'Solid
      Height          =   1095
      Left            =   240
      Shape           =   3  'Circle
      Top             =   960
      Width           =   1095
   End
   Begin VB.Shape shpHatched 
      FillColor       =   &H00C00000&
      FillStyle       =   4  'Upward Diagonal
      Height          =   1095
      Left            =   1560
      Top             =   960
      Width           =   1575
   End
End
Attribute VB_Name = "frmDrawn"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
