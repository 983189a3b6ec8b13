VERSION 5.00
Begin VB.Form frmChoices 
   Caption         =   "Choices"
   ClientHeight    =   3405
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   3975
   LinkTopic       =   "Form1"
   ScaleHeight     =   3405
   ScaleWidth      =   3975
   StartUpPosition =   3  'Windows Default
   Begin VB.ComboBox cboDrop 
      Height          =   315
      Left            =   120
      List            =   "choices.frx":0000
      TabIndex        =   0
      Text            =   "green"
      Top             =   120
      Width           =   1815
   End
   Begin VB.ComboBox cboLong 
      Height          =   315
      Left            =   120
      List            =   "choices.frx":002C
      TabIndex        =   1
      Text            =   "An item whose text is longer than the box that shows it"
      Top             =   540
      Width           =   1815
   End
   Begin VB.ComboBox cboSimple 
      Height          =   1530
      Left            =   120
      List            =   "choices.frx":0069
      Style           =   1  'Simple Combo
      TabIndex        =   2
      Text            =   "blue"
      Top             =   960
      Width           =   1815
   End
   Begin VB.ComboBox cboList 
      Height          =   315
      Left            =   2040
      List            =   "choices.frx":0095
      Style           =   2  'Dropdown List
      TabIndex        =   3
      Text            =   "yellow"
      Top             =   120
      Width           =   1815
   End
   Begin VB.ComboBox cboNone 
      Height          =   315
      Left            =   2040
      List            =   "choices.frx":00C1
      Style           =   2  'Dropdown List
      TabIndex        =   4
      Top             =   540
      Width           =   1815
   End
   Begin VB.ListBox lstChecks 
      Height          =   1530
      Left            =   2040
      List            =   "choices.frx":00ED
      Style           =   1  'Checkbox
      TabIndex        =   5
      Top             =   960
      Width           =   1815
   End
   Begin VB.ListBox lstColumns 
      Columns         =   3
      Height          =   645
      Left            =   120
      List            =   "choices.frx":0119
      MultiSelect     =   2  'Extended
      TabIndex        =   6
      Top             =   2640
      Width           =   3735
   End
End
Attribute VB_Name = "frmChoices"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
