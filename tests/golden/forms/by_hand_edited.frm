version 5.00

' a form that someone edited
Object="{6B1A3F52-8C0D-4E7B-9A44-2D5C8E7F1A90}#7.1#0";"lumenkit.ocx"
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
