VERSION 5.00
Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx"
Begin VB.Form frmControls 
   BackColor       =   &H00F0F0F0&
   Caption         =   "Order"
   ClientHeight    =   2580
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   7200
   ScaleHeight     =   2580
   ScaleWidth      =   7200
   Begin lumenkit.VLabel VLabel1 
      Height          =   1335
      Left            =   150
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
      Caption         =   "|Size:14||B:1|Order a T-shirt|B:0||Size:9||Before:60||CR|* Pick a size on the right|CR|* Write below what to print: 3 lines of 24|CR|* Printing takes |Fore:200,10,16|two days|Fore:0,0,0| |I:1|(three before holidays)"
      ForeColor       =   0
      WordWrap        =   -1  'True
   End
   Begin lumenkit.VMemo VMemo1 
      Height          =   855
      Left            =   390
      TabIndex        =   2
      Top             =   1560
      Width           =   3615
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
   Begin lumenkit.VOptList VOptList1 
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
End
Attribute VB_Name = "frmControls"
