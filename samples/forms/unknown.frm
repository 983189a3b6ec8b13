VERSION 5.00
Object = "*\AGauges.vbp"
Object = "{00025600-0000-0000-C000-000000000046}#5.2#0"; "crystl32.ocx"
Begin VB.Form frmUnknown 
   Caption         =   "She said ""yes"", then left"
   ClientHeight    =   4000
   Begin TabDlg.SSTab SSTab1 
      Height          =   2055
      Tabs            =   2
      TabHeight       =   520
      _Version        =   393216
      TabCaption(0)   =   "First"
      TabPicture(0)   =   "unknown.frx":0000
      Tab(0).ControlEnabled=   -1  'True
      Tab(0).Control(0)=   "Command1"
      Tab(0).ControlCount=   1
      TabCaption(1)   =   "Second"
      Tab(1).ControlEnabled=   0   'False
   End
   Begin Other.Thing Thing1 
      Ratio           =   -0.5
      Tiny            =   1.5E-05
      Huge            =   1E+20
      TooLong         =   4294967295
      Lowest          =   -2147483648
      Mask            =   &HFF&
      Word            =   &HFFFF
      Format          =   {6B263850-900B-11D0-9484-00A0C91110ED}
      Item(0)         =   "zero"
      Item(1)         =   ""
      Cell(1,2).Text  =   "	 tab 	"
      Tight=1
      AnEvenLongerPropertyName=   "x"
      BLOB            =   "unknown.frx":0003
   End
   Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} Designer1 
      Mystery         =   1   'an enumerated value
   End
End
Attribute VB_Name = "frmUnknown"
