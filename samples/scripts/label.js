// Sets up a label:  cscript //nologo label.js
var label = new ActiveXObject("lumenkit.VLabel");
label.BulletPrefix = "* ";
label.BulletIndent = 300;
label.Caption = "|B:1|Opening hours|B:0||CR||before:60|* Mon |Fore:0,128,0|9-17";
label.Font.Name = "Arial";
label.Font.Size = 12;

// Fits the label to its text: a larger font needs a higher label.
function height() {
    label.SetIdealSize();
    return label.GetProperty("height");
}
var before = height();
label.Font.Size = 24;
var larger = height();
WScript.Echo(label.Font.Name + " " + label.Font.Size);
WScript.Echo("24 points need " + (larger > before ? "more" : "no more") + " room than 12");
WScript.Echo(label.Caption);
WScript.Echo("done");
