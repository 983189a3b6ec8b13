var label = new ActiveXObject("lumenkit.VLabel");

// A new control. Colours are signed: 0x80000005 is 5 - 2^31.
equal("BackColor", 5 - 2147483648, label.BackColor);
equal("ForeColor", 18 - 2147483648, label.ForeColor);
equal("Enabled", true, label.Enabled);
equal("BorderStyle", 0, label.BorderStyle);
equal("FontTransparent", true, label.FontTransparent);
equal("MousePointer", 0, label.MousePointer);
equal("Caption", "VLabel", label.Caption);
equal("WordWrap", false, label.WordWrap);
equal("BulletIndent", 0, label.BulletIndent);
equal("BulletPrefix", "", label.BulletPrefix);
equal("AutoSize", false, label.AutoSize);
equal("BackStyle", 0, label.BackStyle);

label.BackColor = 0x030201;
equal("BackColor", 0x030201, label.BackColor);
label.ForeColor = 0xFF;
equal("ForeColor", 255, label.ForeColor);
label.Enabled = false;
equal("Enabled", false, label.Enabled);
label.BorderStyle = 1;
equal("BorderStyle", 1, label.BorderStyle);
label.FontTransparent = false;
equal("FontTransparent", false, label.FontTransparent);
label.MousePointer = 2;
equal("MousePointer", 2, label.MousePointer);
label.Caption = "one|CR|two";
equal("Caption", "one|CR|two", label.Caption);
label.WordWrap = true;
equal("WordWrap", true, label.WordWrap);
label.BulletIndent = 32767;
equal("BulletIndent", 32767, label.BulletIndent);
label.BulletPrefix = "- ";
equal("BulletPrefix", "- ", label.BulletPrefix);
label.AutoSize = true;
equal("AutoSize", true, label.AutoSize);
label.BackStyle = -1;
equal("BackStyle", -1, label.BackStyle);
label.Refresh();
equal("the default member", "one|CR|two", "" + label);

label.Font.Size = 24;
equalSize("Font.Size", 24, label.Font.Size);
var other = new ActiveXObject("lumenkit.VLabel");
other.Font = label.Font;
other.Font.Size = 9;
equalSize("the shared font's size", 9, label.Font.Size);
other = new ActiveXObject("lumenkit.VLabel");
label.Font = other.Font;
other.Font.Size = 12;
equalSize("Font.Size", 12, label.Font.Size);

label.BulletIndent = 0;
label.WordWrap = false;
label.Caption = "as wide as it needs to be";
label.SetIdealSize();
var width = label.GetProperty("wIDTH"), height = label.GetProperty("height");
label.Font.Size = 36;
label.SetIdealSize();
equal("whether larger text needs more width", true, label.GetProperty("width") > width);
equal("whether larger text needs more height", true, label.GetProperty("height") > height);
equal("GetProperty(caption)", undefined, label.GetProperty("caption"));
label.Test("tested");
equal("Caption", "tested", label.Caption);

box("VLABEL pLetBorderStyle 380");
label.BorderStyle = -1;
equal("BorderStyle", 1, label.BorderStyle);

raises("an unknown method", 438, function () { label.NoSuchMember(); });
raises("an unknown property", 438, function () { label.NoSuchMember = 1; });
raises("too large a number", 6, function () { label.BulletIndent = 32768; });
raises("text for a number", 13, function () { label.BulletIndent = "many"; });
raises("a label for a font", 13, function () { label.Font = label; });
raises("too many arguments", 450, function () { label.Refresh(1); });
raises("too few arguments", 449, function () { label.GetProperty(); });
equal("an unknown name", undefined, label.NoSuchMember);
equal("BulletIndent", 0, label.BulletIndent);

WScript.Echo("all done");
