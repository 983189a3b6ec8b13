version 5.00

' a form that someone edited
Object="{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0";"lumenkit.ocx"
begin VB.Form Form1
	Caption = "By machine"

	BEGIN lumenkit.VLabel VLabel1
		Caption="|i|slanted"
		beginproperty font
			name = "Arial"
		   Size            =   12
		endproperty
		' nothing else
		Enabled = -1
	   AutoSize        =   -1  'True
	END

end ' of the form
Attribute VB_Name = "Form1"
