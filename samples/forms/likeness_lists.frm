VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{F0D2F211-CCB0-11D0-A316-00AA00688B10}#1.0#0"; "MSDATLST.OCX"
Object = "{FAEEE763-117E-101B-8933-08002B2F4F5A}#1.1#0"; "DBLIST32.OCX"
Begin VB.Form frmLists2 
   Caption         =   "Lists"
   ClientHeight    =   3500
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7100
   LinkTopic       =   "Form1"
   ScaleHeight     =   3500
   ScaleWidth      =   7100
   StartUpPosition =   3  'Windows Default
   Begin MSComctlLib.ListView lvwFiles 
      Height          =   1575
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   3735
      _ExtentX        =   6588
      _ExtentY        =   2778
      _Version        =   393216
      View            =   3
      LabelEdit       =   1
      LabelWrap       =   -1  'True
      FullRowSelect   =   -1  'True
      ForeColor       =   -2147483640
      BackColor       =   -2147483643
      BorderStyle     =   1
      Appearance      =   1
      NumItems        =   3
      BeginProperty ColumnHeader(1) {BDD1F052-858B-11D1-B16A-00C0F0283628} 
         Text            =   "Name"
         Object.Width           =   2540
      EndProperty
      BeginProperty ColumnHeader(2) {BDD1F052-858B-11D1-B16A-00C0F0283628} 
         Alignment       =   1
         SubItemIndex    =   1
         Text            =   "Size"
         Object.Width           =   1411
      EndProperty
      BeginProperty ColumnHeader(3) {BDD1F052-858B-11D1-B16A-00C0F0283628} 
         SubItemIndex    =   2
         Text            =   "Changed"
         Object.Width           =   1764
      EndProperty
   End
   Begin MSComctlLib.ListView lvwIcons 
      Height          =   1575
      Left            =   3960
      TabIndex        =   1
      Top             =   120
      Width           =   1215
      _ExtentX        =   2143
      _ExtentY        =   2778
      _Version        =   393216
      LabelWrap       =   -1  'True
      NumItems        =   0
   End
   Begin MSComctlLib.TreeView tvwParts 
      Height          =   1575
      Left            =   5280
      TabIndex        =   2
      Top             =   120
      Width           =   1695
      _ExtentX        =   2990
      _ExtentY        =   2778
      _Version        =   393216
      Style           =   7
      Appearance      =   1
   End
   Begin VB.DriveListBox drvSource 
      Height          =   315
      Left            =   120
      TabIndex        =   3
      Top             =   1800
      Width           =   1815
   End
   Begin VB.DirListBox dirSource 
      Height          =   1215
      Left            =   120
      TabIndex        =   4
      Top             =   2160
      Width           =   1815
   End
   Begin VB.FileListBox filSource 
      Height          =   1530
      Left            =   2040
      TabIndex        =   5
      Top             =   1800
      Width           =   1815
      Pattern         =   "*.txt"
   End
   Begin MSDataListLib.DataCombo dbcCity 
      Height          =   315
      Left            =   3960
      TabIndex        =   6
      Top             =   1800
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   556
      _Version        =   393216
      Text            =   "DataCombo1"
   End
   Begin MSDBCtls.DBCombo dbcTown 
      Height          =   315
      Left            =   5520
      TabIndex        =   7
      Top             =   1800
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   556
      _Version        =   393216
      Text            =   "DBCombo1"
   End
   Begin MSDataListLib.DataList dblCity 
      Height          =   735
      Left            =   3960
      TabIndex        =   8
      Top             =   2160
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   1296
      _Version        =   393216
   End
   Begin MSDBCtls.DBList dblTown 
      Height          =   735
      Left            =   5520
      TabIndex        =   9
      Top             =   2160
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   1296
      _Version        =   393216
   End
   Begin MSComctlLib.ImageCombo imcSign 
      Height          =   330
      Left            =   3960
      TabIndex        =   10
      Top             =   3000
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   582
      _Version        =   393216
      ForeColor       =   -2147483640
      BackColor       =   -2147483643
      Text            =   "ImageCombo1"
   End
End
Attribute VB_Name = "frmLists2"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
