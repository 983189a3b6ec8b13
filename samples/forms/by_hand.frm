version 5.00

' a form that someone edited
Object="{6B1A3F52-8C0D-4E7B-9A44-2D5C8E7F1A90}#7.1#0";"lumenkit.ocx"
begin VB.Form Form1
	Caption = "By hand" ' the title

	BEGIN lumenkit.VLabel VLabel1
		Caption="|b|bold"
		beginproperty font
			name = "Arial"
		endproperty
		' nothing else
		Enabled = -1
	END

end ' of the form
Attribute VB_Name = "Form1"
