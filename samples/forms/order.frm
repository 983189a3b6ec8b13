VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmOrder 
   Caption         =   "Order"
   ClientHeight    =   4440
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7200
   LinkTopic       =   "Form1"
   ScaleHeight     =   4440
   ScaleWidth      =   7200
   StartUpPosition =   3  'Windows Default
   Begin VB.CommandButton cmdCancel 
      Cancel          =   -1  'True
      Caption         =   "Cancel"
      Height          =   375
      Left            =   5820
      TabIndex        =   8
      Top             =   3840
      Width           =   1215
   End
   Begin VB.CommandButton cmdOrder 
      Caption         =   "&Order"
      Default         =   -1  'True
      Height          =   375
      Left            =   4500
      TabIndex        =   7
      Top             =   3840
      Width           =   1215
   End
   Begin VB.CheckBox chkGift 
      Caption         =   "It is a &gift"
      Height          =   255
      Left            =   180
      TabIndex        =   6
      Top             =   3900
      Width           =   2415
   End
   Begin lumenkit.VMemo memPrint 
      Height          =   975
      Left            =   180
      TabIndex        =   5
      Top             =   2640
      Width           =   3915
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Courier New"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      MaxCharsPerLine =   24
      MaxLines        =   3
      Text            =   "HAPPY BIRTHDAY, LEN"
   End
   Begin VB.TextBox txtName 
      Height          =   315
      Left            =   1260
      TabIndex        =   3
      Text            =   "Ada Lovelace"
      Top             =   1920
      Width           =   2835
   End
   Begin lumenkit.VOptList optSize 
      Height          =   2295
      Left            =   4380
      TabIndex        =   1
      Top             =   120
      Width           =   2655
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Arial"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Caption         =   "Size"
      Contents        =   "s;Small|m;Medium|l;Large|x;Extra large"
      ItemFontName    =   "Arial"
      ItemFontSize    =   9
      LeftMargin      =   180
      ListIndex       =   1
      Spacing         =   420
      TopMargin       =   360
   End
   Begin lumenkit.VLabel lblWelcome 
      Height          =   1575
      Left            =   180
      TabIndex        =   0
      Top             =   120
      Width           =   3975
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Arial"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      BackStyle       =   1
      BulletIndent    =   240
      BulletPrefix    =   "* "
      Caption         =   $"order.frx":0000
      WordWrap        =   -1  'True
   End
   Begin VB.Label lblPrint 
      Caption         =   "What to &print"
      Height          =   255
      Left            =   180
      TabIndex        =   4
      Top             =   2340
      Width           =   2415
   End
   Begin VB.Label lblName 
      Caption         =   "&Your name"
      Height          =   255
      Left            =   180
      TabIndex        =   2
      Top             =   1980
      Width           =   1035
   End
End
Attribute VB_Name = "frmOrder"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
