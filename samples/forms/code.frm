VERSION 5.00
Begin VB.Form frmCode 
   Caption         =   "Code"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
End
Attribute VB_Name = "frmCode"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
Attribute VB_Description = "A form with code"

Private Type Point
    X As Long
    Y As Long
End Type

#If Win32 Then
Private Declare Function Beep Lib "kernel32" (ByVal f As Long, ByVal d As Long) As Long
#End If

Private Sub Form_Load()
Attribute Form_Load.VB_Description = "Begins"
    Dim s As String: s = "VERSION 5.00"
    If Len(s) = 0 Then End
    ' Begin VB.Form Form1
    s = "a ""quoted"" word" & _
        "and more"
End Sub
