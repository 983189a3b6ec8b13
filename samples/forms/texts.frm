VERSION 5.00
Begin VB.Form frmTexts 
   Caption         =   "Texts"
   ClientHeight    =   4095
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   5775
   LinkTopic       =   "Form1"
   ScaleHeight     =   4095
   ScaleWidth      =   5775
   StartUpPosition =   3  'Windows Default
   Begin VB.TextBox txtLong 
      Height          =   315
      Left            =   120
      TabIndex        =   0
      Text            =   "The quick brown fox jumps over the lazy dog, and the dog does not even look up"
      Top             =   120
      Width           =   2175
   End
   Begin VB.TextBox txtTall 
      Height          =   735
      Left            =   2400
      TabIndex        =   1
      Text            =   "At the top"
      Top             =   120
      Width           =   1575
   End
   Begin VB.TextBox txtRight 
      Alignment       =   1  'Right Justify
      Height          =   735
      Left            =   4080
      TabIndex        =   2
      Text            =   "right"
      Top             =   120
      Width           =   1575
   End
   Begin VB.TextBox txtLeft 
      Height          =   975
      Left            =   120
      MultiLine       =   -1  'True
      TabIndex        =   3
      Text            =   $"texts.frx":0000
      Top             =   960
      Width           =   1755
   End
   Begin VB.TextBox txtCentre 
      Alignment       =   2  'Center
      Height          =   975
      Left            =   2010
      MultiLine       =   -1  'True
      TabIndex        =   4
      Text            =   $"texts.frx":0055
      Top             =   960
      Width           =   1755
   End
   Begin VB.TextBox txtLines 
      Alignment       =   1  'Right Justify
      Height          =   975
      Left            =   3900
      MultiLine       =   -1  'True
      ScrollBars      =   2  'Vertical
      TabIndex        =   5
      Text            =   $"texts.frx":00AC
      Top             =   960
      Width           =   1755
   End
   Begin VB.Label lblGrown 
      AutoSize        =   -1  'True
      BackColor       =   &H0080FFFF&
      Caption         =   "This label has grown to the right"
      Height          =   195
      Left            =   120
      TabIndex        =   6
      Top             =   2100
      Width           =   495
   End
   Begin VB.Label lblRight 
      Alignment       =   1  'Right Justify
      AutoSize        =   -1  'True
      BackColor       =   &H0080FFFF&
      Caption         =   "This one has grown to the left"
      Height          =   195
      Left            =   5160
      TabIndex        =   7
      Top             =   2400
      Width           =   495
   End
   Begin VB.Label lblCentre 
      Alignment       =   2  'Center
      AutoSize        =   -1  'True
      BackColor       =   &H0080FFFF&
      Caption         =   "This one has grown to both sides"
      Height          =   195
      Left            =   2640
      TabIndex        =   8
      Top             =   2700
      Width           =   495
   End
   Begin VB.Label lblWrapped 
      AutoSize        =   -1  'True
      BackColor       =   &H0080FFFF&
      BorderStyle     =   1  'Fixed Single
      Caption         =   "This label wraps its text and has grown downwards"
      Height          =   195
      Left            =   120
      TabIndex        =   9
      Top             =   3000
      Width           =   1755
      WordWrap        =   -1  'True
   End
   Begin VB.Label lblShrunk 
      AutoSize        =   -1  'True
      BackColor       =   &H0080FFFF&
      Caption         =   "&Shrunk"
      Height          =   855
      Left            =   3900
      TabIndex        =   10
      Top             =   3000
      Width           =   1755
   End
   Begin VB.Label lblSaved 
      BackColor       =   &H00C0E0FF&
      Caption         =   "Without AutoSize, a label keeps its size"
      Height          =   855
      Left            =   2010
      TabIndex        =   11
      Top             =   3000
      Width           =   1755
   End
End
Attribute VB_Name = "frmTexts"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
