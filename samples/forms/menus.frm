VERSION 5.00
Begin VB.Form frmMenus 
   Caption         =   "Menus"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileNew 
         Caption         =   "&New"
         Shortcut        =   ^N
      End
      Begin VB.Menu mnuFileSep 
         Caption         =   "-"
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&Recent"
         Begin VB.Menu mnuRecent 
            Caption         =   "one"
            Index           =   0
         End
         Begin VB.Menu mnuRecent 
            Caption         =   "two"
            Index           =   1
         End
      End
   End
   Begin VB.Menu mnuHelp 
      Caption         =   "&Help"
      NegotiatePosition=   3  'Right
      Begin VB.Menu mnuHelpTopics 
         Caption         =   "&Topics"
         Shortcut        =   {F1}
      End
      Begin VB.Menu mnuHelpBack 
         Caption         =   "&Back"
         Shortcut        =   +^{F12}
      End
      Begin VB.Menu mnuDelete 
         Caption         =   "&Delete"
         Enabled         =   0   'False
         Shortcut        =   {DEL}
      End
   End
End
Attribute VB_Name = "frmMenus"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub mnuFileNew_Click()
    MsgBox "Begin" & vbCrLf & "End"
End Sub
