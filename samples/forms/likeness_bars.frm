VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Begin VB.Form frmBars 
   Caption         =   "Bars"
   ClientHeight    =   4200
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   6600
   LinkTopic       =   "Form1"
   ScaleHeight     =   4200
   ScaleWidth      =   6600
   StartUpPosition =   3  'Windows Default
   Begin MSComctlLib.Toolbar tlbMain 
      Align           =   1  'Align Top
      Height          =   420
      Left            =   0
      TabIndex        =   0
      Top             =   0
      Width           =   6600
      _ExtentX        =   11642
      _ExtentY        =   741
      _Version        =   393216
      ButtonWidth     =   609
      ButtonHeight    =   582
      Appearance      =   1
      Style           =   1
      ImageList       =   "imlBars"
      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} 
         NumButtons      =   6
         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Key             =   "New"
            ImageIndex      =   1
         EndProperty
         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Key             =   "Open"
            ImageKey        =   "green"
         EndProperty
         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   3
         EndProperty
         BeginProperty Button4 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Enabled         =   0   'False
            ImageIndex      =   3
         EndProperty
         BeginProperty Button5 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   4
            Object.Width           =   1058
         EndProperty
         BeginProperty Button6 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   5
            ImageIndex      =   1
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.Toolbar tlbText 
      Align           =   1  'Align Top
      Height          =   660
      Left            =   0
      TabIndex        =   1
      Top             =   420
      Width           =   6600
      _ExtentX        =   11642
      _ExtentY        =   1164
      _Version        =   393216
      ButtonWidth     =   1138
      ButtonHeight    =   1005
      Appearance      =   1
      ImageList       =   "imlBars"
      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} 
         NumButtons      =   3
         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Save"
            ImageIndex      =   2
         EndProperty
         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Bold"
            Style           =   1
            Value           =   1
         EndProperty
         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Print"
            ImageIndex      =   3
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.StatusBar stbMain 
      Align           =   2  'Align Bottom
      Height          =   375
      Left            =   0
      TabIndex        =   2
      Top             =   3825
      Width           =   6600
      _ExtentX        =   11642
      _ExtentY        =   661
      _Version        =   393216
      BeginProperty Panels {8E3867A5-8586-11D1-B16A-00C0F0283628} 
         NumPanels       =   4
         BeginProperty Panel1 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            AutoSize        =   1
            Object.Width           =   5001
            Text            =   "Ready"
            TextSave        =   "Ready"
         EndProperty
         BeginProperty Panel2 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            Style           =   1
            Alignment       =   1
            Object.Width           =   1411
            TextSave        =   "CAPS"
         EndProperty
         BeginProperty Panel3 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            Style           =   6
            Object.Width           =   2540
            TextSave        =   "3/14/2002"
         EndProperty
         BeginProperty Panel4 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            Style           =   5
            Alignment       =   2
            Object.Width           =   1764
            TextSave        =   "9:41 AM"
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.StatusBar stbSimple 
      Height          =   375
      Left            =   120
      TabIndex        =   3
      Top             =   3300
      Width           =   3000
      _ExtentX        =   5292
      _ExtentY        =   661
      _Version        =   393216
      Style           =   1
      SimpleText      =   "Only one text"
   End
   Begin MSComctlLib.ProgressBar prgDone 
      Height          =   255
      Left            =   120
      TabIndex        =   4
      Top             =   1200
      Width           =   3000
      _ExtentX        =   5292
      _ExtentY        =   450
      _Version        =   393216
      Appearance      =   1
      Value           =   40
   End
   Begin MSComctlLib.ProgressBar prgUp 
      Height          =   1455
      Left            =   3240
      TabIndex        =   5
      Top             =   1200
      Width           =   255
      _ExtentX        =   450
      _ExtentY        =   2566
      _Version        =   393216
      Appearance      =   1
      Orientation     =   1
      Max             =   10
      Value           =   7
   End
   Begin MSComctlLib.Slider sldSize 
      Height          =   495
      Left            =   120
      TabIndex        =   6
      Top             =   1560
      Width           =   3000
      _ExtentX        =   5292
      _ExtentY        =   873
      _Version        =   393216
      LargeChange     =   2
      Value           =   4
   End
   Begin MSComctlLib.Slider sldVolume 
      Height          =   1455
      Left            =   3600
      TabIndex        =   7
      Top             =   1200
      Width           =   495
      _ExtentX        =   873
      _ExtentY        =   2566
      _Version        =   393216
      Orientation     =   1
      TickStyle       =   2
      Max             =   100
      Value           =   25
      TickFrequency   =   25
   End
   Begin MSComCtl2.UpDown updCount 
      Height          =   495
      Left            =   4200
      TabIndex        =   8
      Top             =   1200
      Width           =   240
      _ExtentX        =   423
      _ExtentY        =   873
      _Version        =   393216
   End
   Begin MSComCtl2.UpDown updAcross 
      Height          =   240
      Left            =   4200
      TabIndex        =   9
      Top             =   1800
      Width           =   495
      _ExtentX        =   873
      _ExtentY        =   423
      _Version        =   393216
      Orientation     =   1
   End
   Begin MSComctlLib.TabStrip tbsPages 
      Height          =   1455
      Left            =   4800
      TabIndex        =   10
      Top             =   1200
      Width           =   1695
      _ExtentX        =   2990
      _ExtentY        =   2566
      _Version        =   393216
      BeginProperty Tabs {1EFB6598-857C-11D1-B16A-00C0F0283628} 
         NumTabs         =   2
         BeginProperty Tab1 {1EFB659A-857C-11D1-B16A-00C0F0283628} 
            Caption         =   "General"
            ImageVarType    =   2
         EndProperty
         BeginProperty Tab2 {1EFB659A-857C-11D1-B16A-00C0F0283628} 
            Caption         =   "More"
            ImageVarType    =   2
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.ImageList imlBars 
      Left            =   3600
      Top             =   3000
      _ExtentX        =   1005
      _ExtentY        =   1005
      BackColor       =   -2147483643
      ImageWidth      =   16
      ImageHeight     =   16
      MaskColor       =   12632256
      _Version        =   393216
      BeginProperty Images {2C247F25-8591-11D1-B16A-00C0F0283628} 
         NumListImages   =   3
         BeginProperty ListImage1 {2C247F27-8591-11D1-B16A-00C0F0283628} 
            Picture         =   "likeness_bars.frx":0000
            Key             =   ""
         EndProperty
         BeginProperty ListImage2 {2C247F27-8591-11D1-B16A-00C0F0283628} 
            Picture         =   "likeness_bars.frx":0342
            Key             =   "green"
         EndProperty
         BeginProperty ListImage3 {2C247F27-8591-11D1-B16A-00C0F0283628} 
            Picture         =   "likeness_bars.frx":0684
            Key             =   ""
         EndProperty
      EndProperty
   End
End
Attribute VB_Name = "frmBars"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
