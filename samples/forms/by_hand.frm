version 5.00

' a form that someone edited
Object="{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0";"lumenkit.ocx"
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
