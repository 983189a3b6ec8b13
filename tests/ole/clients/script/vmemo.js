var memo = new ActiveXObject("lumenkit.VMemo");

// A new control.
equal("Text", "VMemo\r\n", memo.Text);
equal("ForeColor", 8 - 2147483648, memo.ForeColor);
equal("Enabled", true, memo.Enabled);
equal("CausesValidation", true, memo.CausesValidation);
equal("FontName", "Courier", memo.FontName);
equalSize("FontSize", 9.75, memo.FontSize);
equal("Locked", false, memo.Locked);
equal("MousePointer", 0, memo.MousePointer);
equal("ScrollBars", 0, memo.ScrollBars);
equal("MaxCharsPerLine", 0, memo.MaxCharsPerLine);
equal("MaxLines", 0, memo.MaxLines);
box("VMEMO pGetMaxLength 438");
equal("MaxLength", 0, memo.MaxLength);

memo.ForeColor = 0x00FF00;
equal("ForeColor", 65280, memo.ForeColor);
memo.Enabled = false;
equal("Enabled", false, memo.Enabled);
memo.CausesValidation = false;
equal("CausesValidation", true, memo.CausesValidation);
memo.FontName = "Times New Roman";
equal("FontName", "Times New Roman", memo.FontName);
memo.FontSize = 15;
equalSize("FontSize", 15, memo.FontSize);
equal("Font.Name", "Times New Roman", memo.Font.Name);
equalSize("Font.Size", 15, memo.Font.Size);
memo.Locked = true;
equal("Locked", true, memo.Locked);
memo.MaxLength = 7;
memo.MousePointer = 1;
equal("MousePointer", 1, memo.MousePointer);
memo.ScrollBars = 2;
equal("ScrollBars", 2, memo.ScrollBars);
memo.MaxCharsPerLine = 3;
equal("MaxCharsPerLine", 3, memo.MaxCharsPerLine);
memo.MaxLines = 1;
equal("MaxLines", 1, memo.MaxLines);
memo.Text = "abcd\r\nX";
equal("Text", "abc\r", memo.Text);
memo.Text = "abcde\r\nX";
equal("Text", "abc\r\n", memo.Text);
equal("the default member", "abc\r\n", "" + memo);
memo.Refresh();
memo.PageWidth = 0;
equal("MaxCharsPerLine", 0, memo.MaxCharsPerLine);

memo.Font.Italic = true;
equal("Font.Italic", true, memo.Font.Italic);
var label = new ActiveXObject("lumenkit.VLabel");
label.Font.Name = "Arial";
memo.Font = label.Font;
equal("FontName", "Arial", memo.FontName);

box("VMEMO TestMessage 11");
memo.TestMessage();
box("VMEMO pLetScrollBars 340");
memo.ScrollBars = -1;
equal("ScrollBars", 2, memo.ScrollBars);

raises("an unknown property", 438, function () { memo.NoSuchMember = 1; });
raises("too large a number", 6, function () { memo.MaxCharsPerLine = -32769; });
raises("text for a number", 13, function () { memo.MaxLines = "few"; });
raises("an argument for nothing", 450, function () { memo.TestMessage(1); });
raises("reading what is only written", 438, function () { return memo.PageWidth; });

WScript.Echo("all done");
