VERSION 5.00
Object = "{3B7C8863-D78F-101B-B9B5-04021C009402}#1.2#0"; "RICHTX32.OCX"
Object = "{C932BA88-4374-101B-A56C-00AA003668DC}#1.1#0"; "MSMASK32.OCX"
Object = "{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Object = "{EAB22AC0-30C1-11CF-A7EB-0000C05BAE0B}#1.1#0"; "SHDOCVW.DLL"
Begin VB.Form frmTexts 
   Caption         =   "Texts"
   ClientHeight    =   3375
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   6135
   LinkTopic       =   "Form1"
   ScaleHeight     =   3375
   ScaleWidth      =   6135
   StartUpPosition =   3  'Windows Default
   Begin RichTextLib.RichTextBox rtfNote 
      Height          =   855
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   2415
      _ExtentX        =   4260
      _ExtentY        =   1508
      _Version        =   393216
      ScrollBars      =   2
      TextRTF         =   "{\rtf1\ansi\deff0{\fonttbl{\f0\fnil\fcharset0 MS Sans Serif;}}\pard\lang1033\f0\fs17 Caf\'e9 \b bold\b0\par second line\par }"
   End
   Begin RichTextLib.RichTextBox rtfLetter 
      Height          =   855
      Left            =   2640
      TabIndex        =   1
      Top             =   120
      Width           =   3375
      _ExtentX        =   5953
      _ExtentY        =   1508
      _Version        =   393216
      Enabled         =   -1  'True
      ScrollBars      =   3
      TextRTF         =   $"likeness_texts.frx":0000
   End
   Begin VB.Label lblDate 
      Caption         =   "&Date:"
      Height          =   255
      Left            =   120
      TabIndex        =   2
      Top             =   1110
      Width           =   735
   End
   Begin MSMask.MaskEdBox mskDate 
      Height          =   315
      Left            =   960
      TabIndex        =   3
      Top             =   1080
      Width           =   1575
      _ExtentX        =   2778
      _ExtentY        =   556
      _Version        =   393216
      MaxLength       =   10
      Mask            =   "##/##/####"
      PromptChar      =   "_"
   End
   Begin MSMask.MaskEdBox mskPhone 
      Height          =   315
      Left            =   2640
      TabIndex        =   4
      Top             =   1080
      Width           =   1575
      _ExtentX        =   2778
      _ExtentY        =   556
      _Version        =   393216
      PromptChar      =   "_"
      Text            =   "555-0123"
   End
   Begin MSComCtl2.DTPicker dtpDay 
      Height          =   330
      Left            =   120
      TabIndex        =   5
      Top             =   1560
      Width           =   1935
      _ExtentX        =   3413
      _ExtentY        =   582
      _Version        =   393216
      Format          =   57409537
      CurrentDate     =   37622
   End
   Begin MSComCtl2.DTPicker dtpTime 
      Height          =   330
      Left            =   2160
      TabIndex        =   6
      Top             =   1560
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   582
      _Version        =   393216
      Format          =   57409538
      UpDown          =   -1  'True
      CurrentDate     =   37622.75
   End
   Begin MSComCtl2.DTPicker dtpOwn 
      Height          =   330
      Left            =   3720
      TabIndex        =   7
      Top             =   1560
      Width           =   1815
      _ExtentX        =   3201
      _ExtentY        =   582
      _Version        =   393216
      CustomFormat    =   "dd.MM.yyyy"
      Format          =   57409539
      CurrentDate     =   37622
   End
   Begin SHDocVwCtl.WebBrowser webPage 
      Height          =   1215
      Left            =   120
      TabIndex        =   8
      Top             =   2040
      Width           =   2895
      ExtentX         =   5106
      ExtentY         =   2143
      ViewMode        =   0
      Location        =   "http:///"
   End
   Begin VB.OLE oleSheet 
      Class           =   "Excel.Sheet.8"
      Height          =   1215
      Left            =   3120
      TabIndex        =   9
      Top             =   2040
      Width           =   2895
      SizeMode        =   1
   End
End
Attribute VB_Name = "frmTexts"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
