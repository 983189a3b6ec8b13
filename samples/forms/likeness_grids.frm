VERSION 5.00
Object = "{5E9E78A0-531B-11CF-91F6-C2863C385E30}#1.0#0"; "MSFLXGRD.OCX"
Object = "{0ECD9B60-23AA-11D0-B351-00A0C9055D8E}#6.0#0"; "MSHFLXGD.OCX"
Object = "{00028C01-0000-0000-0000-000000000046}#1.0#0"; "DBGRID32.OCX"
Object = "{CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}#1.0#0"; "MSDATGRD.OCX"
Object = "{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form frmGrids 
   Caption         =   "Grids and records"
   ClientHeight    =   4305
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   6375
   LinkTopic       =   "Form1"
   ScaleHeight     =   4305
   ScaleWidth      =   6375
   StartUpPosition =   3  'Windows Default
   Begin MSFlexGridLib.MSFlexGrid flxPrices 
      Height          =   1455
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   3255
      _ExtentX        =   5741
      _ExtentY        =   2566
      _Version        =   393216
      Rows            =   4
      Cols            =   3
      FixedCols       =   1
      FormatString    =   "<Article|^Colour|>    Price;|paper|pencil|rubber"
   End
   Begin MSFlexGridLib.MSFlexGrid flxPlain 
      Height          =   1455
      Left            =   3480
      TabIndex        =   1
      Top             =   120
      Width           =   2775
      _ExtentX        =   4895
      _ExtentY        =   2566
      _Version        =   393216
      Rows            =   10
      Cols            =   5
      FixedRows       =   2
      FixedCols       =   0
      BackColorBkg    =   &H00C0FFFF&
   End
   Begin MSHierarchicalFlexGridLib.MSHFlexGrid hfgOrders 
      Height          =   975
      Left            =   120
      TabIndex        =   2
      Top             =   1680
      Width           =   3255
      _ExtentX        =   5741
      _ExtentY        =   1720
      _Version        =   393216
      Cols            =   4
      _NumberOfBands  =   1
   End
   Begin MSDBGrid.DBGrid dbgNames 
      Height          =   975
      Left            =   3480
      TabIndex        =   3
      Top             =   1680
      Width           =   2775
      Caption         =   "Names"
   End
   Begin MSDataGridLib.DataGrid dgdTowns 
      Height          =   1095
      Left            =   120
      TabIndex        =   4
      Top             =   2760
      Width           =   4095
      _ExtentX        =   7223
      _ExtentY        =   1931
      _Version        =   393216
      HeadLines       =   1
      RowHeight       =   15
      Caption         =   "Towns"
      ColumnCount     =   2
      BeginProperty Column00 
         DataField       =   ""
         Caption         =   "Town"
      EndProperty
      BeginProperty Column01 
         DataField       =   ""
         Caption         =   "Country"
      EndProperty
      BeginProperty Split0 
         BeginProperty Column00 
         EndProperty
         BeginProperty Column01 
         EndProperty
      EndProperty
   End
   Begin VB.Data datNames 
      Caption         =   "Names"
      Connect         =   "Access"
      DatabaseName    =   ""
      Height          =   345
      Left            =   4320
      Top             =   2760
      Width           =   1935
   End
   Begin MSAdodcLib.Adodc adoTowns 
      Height          =   330
      Left            =   4320
      Top             =   3240
      Width           =   1935
      _ExtentX        =   3413
      _ExtentY        =   582
      _Version        =   393216
      ConnectMode     =   0
      Caption         =   "Towns"
   End
   Begin VB.Data datFoot 
      Align           =   2  'Align Bottom
      Caption         =   "At the foot of the form"
      Height          =   345
      Left            =   0
      Top             =   3960
      Width           =   6375
   End
End
Attribute VB_Name = "frmGrids"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
