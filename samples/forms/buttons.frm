VERSION 5.00
Begin VB.Form frmButtons 
   Caption         =   "Buttons"
   ClientHeight    =   4335
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   5895
   LinkTopic       =   "Form1"
   ScaleHeight     =   4335
   ScaleWidth      =   5895
   StartUpPosition =   3  'Windows Default
   Begin VB.CommandButton cmdWide 
      Caption         =   "&Send the order to the warehouse"
      Height          =   615
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   1575
   End
   Begin VB.CommandButton cmdLong 
      Caption         =   "This caption has more words than the button has room for"
      Height          =   375
      Left            =   1800
      TabIndex        =   1
      Top             =   120
      Width           =   1215
   End
   Begin VB.CommandButton cmdWord 
      Caption         =   "Donaudampfschifffahrt"
      Height          =   375
      Left            =   3120
      TabIndex        =   2
      Top             =   120
      Width           =   1215
   End
   Begin VB.CommandButton cmdGrey 
      Caption         =   "Cannot be &clicked now"
      Enabled         =   0   'False
      Height          =   615
      Left            =   4440
      TabIndex        =   3
      Top             =   120
      Width           =   1335
   End
   Begin VB.CommandButton cmdSystem 
      BackColor       =   &H000000FF&
      Caption         =   "System"
      Height          =   375
      Left            =   1800
      TabIndex        =   4
      Top             =   600
      Width           =   1215
   End
   Begin VB.CommandButton cmdRed 
      BackColor       =   &H000000FF&
      Caption         =   "&Red"
      Height          =   735
      Left            =   120
      Style           =   1  'Graphical
      TabIndex        =   5
      Top             =   840
      Width           =   1215
   End
   Begin VB.CommandButton cmdYellow 
      BackColor       =   &H0080FFFF&
      Caption         =   "Yellow"
      Height          =   495
      Left            =   1440
      Style           =   1  'Graphical
      TabIndex        =   6
      Top             =   1080
      Width           =   1215
   End
   Begin VB.CommandButton cmdPicture 
      Caption         =   "&Picture"
      DisabledPicture =   "buttons.frx":0E04
      DownPicture     =   "buttons.frx":0702
      Height          =   855
      Left            =   2760
      Picture         =   "buttons.frx":0000
      Style           =   1  'Graphical
      TabIndex        =   7
      Top             =   1080
      Width           =   1215
   End
   Begin VB.CommandButton cmdDisabled 
      Caption         =   "Disabled"
      DisabledPicture =   "buttons.frx":0E04
      DownPicture     =   "buttons.frx":0702
      Enabled         =   0   'False
      Height          =   855
      Left            =   4080
      Picture         =   "buttons.frx":0000
      Style           =   1  'Graphical
      TabIndex        =   8
      Top             =   1080
      Width           =   1215
   End
   Begin VB.CheckBox chkOff 
      Caption         =   "Unchecked"
      Height          =   255
      Left            =   120
      TabIndex        =   9
      Top             =   2040
      Width           =   1695
   End
   Begin VB.CheckBox chkOn 
      Caption         =   "Checked"
      Height          =   255
      Left            =   120
      TabIndex        =   10
      Top             =   2340
      Value           =   1  'Checked
      Width           =   1695
   End
   Begin VB.CheckBox chkGrey 
      Caption         =   "Greyed"
      Height          =   255
      Left            =   120
      TabIndex        =   11
      Top             =   2640
      Value           =   2  'Grayed
      Width           =   1695
   End
   Begin VB.CheckBox chkOut 
      Caption         =   "Disabled"
      Enabled         =   0   'False
      Height          =   255
      Left            =   120
      TabIndex        =   12
      Top             =   2940
      Value           =   1  'Checked
      Width           =   1695
   End
   Begin VB.CheckBox chkLong 
      Caption         =   "&Deliver also on days on which the office is closed!"
      Height          =   735
      Left            =   1920
      TabIndex        =   13
      Top             =   2040
      Width           =   1935
   End
   Begin VB.CheckBox chkRight 
      Alignment       =   1  'Right Justify
      Caption         =   "Mark on the right!"
      Height          =   255
      Left            =   1920
      TabIndex        =   14
      Top             =   2940
      Width           =   1935
   End
   Begin VB.CheckBox chkPush 
      Caption         =   "Stays &down"
      Height          =   735
      Left            =   4080
      Picture         =   "buttons.frx":1506
      Style           =   1  'Graphical
      TabIndex        =   15
      Top             =   2040
      Value           =   1  'Checked
      Width           =   1215
   End
   Begin VB.CheckBox chkColor 
      BackColor       =   &H00C0E0FF&
      Caption         =   "Coloured"
      Height          =   375
      Left            =   4080
      Style           =   1  'Graphical
      TabIndex        =   16
      Top             =   2880
      Width           =   1215
   End
   Begin VB.OptionButton optOne 
      Caption         =   "An option of two lines of text"
      Height          =   495
      Left            =   120
      TabIndex        =   17
      Top             =   3360
      Value           =   -1  'True
      Width           =   1935
   End
   Begin VB.OptionButton optTwo 
      Caption         =   "An&other option"
      ForeColor       =   &H00C00000&
      Height          =   255
      Left            =   120
      TabIndex        =   18
      Top             =   3900
      Width           =   1935
   End
   Begin VB.OptionButton optGrey 
      Caption         =   "Disabled"
      Enabled         =   0   'False
      ForeColor       =   &H00C00000&
      Height          =   255
      Left            =   2160
      TabIndex        =   19
      Top             =   3360
      Width           =   1695
   End
   Begin VB.Frame fraView 
      Caption         =   "View"
      Height          =   855
      Left            =   3960
      TabIndex        =   22
      Top             =   3360
      Width           =   1815
      Begin VB.OptionButton optList 
         Caption         =   "List"
         Height          =   495
         Left            =   120
         Style           =   1  'Graphical
         TabIndex        =   20
         Top             =   240
         Value           =   -1  'True
         Width           =   735
      End
      Begin VB.OptionButton optIcons 
         Caption         =   "Icons"
         Height          =   495
         Left            =   900
         Style           =   1  'Graphical
         TabIndex        =   21
         Top             =   240
         Width           =   735
      End
   End
End
Attribute VB_Name = "frmButtons"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
