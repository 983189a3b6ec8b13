<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message numerus="yes">
        <source>%n controls</source>
        <translation>
            <numerusform>%n Steuerelement</numerusform>
            <numerusform>%n Steuerelemente</numerusform>
        </translation>
    </message>
    <message>
        <source>Move %1 to the form</source>
        <translation>%1 auf das Formular verschieben</translation>
    </message>
    <message>
        <source>Move %1 into %2</source>
        <translation>%1 in %2 verschieben</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>Size %1</source>
        <translation>Größe von %1 ändern</translation>
    </message>
    <message numerus="yes">
        <source>Move %n controls</source>
        <translation>
            <numerusform>%n Steuerelement verschieben</numerusform>
            <numerusform>%n Steuerelemente verschieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Size %n controls</source>
        <translation>
            <numerusform>Größe von %n Steuerelement ändern</numerusform>
            <numerusform>Größe von %n Steuerelementen ändern</numerusform>
        </translation>
    </message>
    <message>
        <source>Size the form</source>
        <translation>Größe des Formulars ändern</translation>
    </message>
    <message>
        <source>Tab order</source>
        <translation>Tabulatorreihenfolge</translation>
    </message>
    <message>
        <source>The file is written in %1, and your version in %2.
</source>
        <translation>Die Datei ist in %1 geschrieben, Ihre Fassung in %2.
</translation>
    </message>
    <message>
        <source>The companion %1 differs, too.
</source>
        <translation>Auch die Begleitdatei %1 ist anders.
</translation>
    </message>
    <message>
        <source>Difference of %1</source>
        <translation>Unterschied zu %1</translation>
    </message>
    <message>
        <source>The file and your version are the same.</source>
        <translation>Die Datei und Ihre Fassung sind gleich.</translation>
    </message>
    <message>
        <source>Lines with a minus sign are in the file, lines with a plus sign are in your version.</source>
        <translation>Zeilen mit Minuszeichen stehen in der Datei, Zeilen mit Pluszeichen in Ihrer Fassung.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
</context>
<context>
    <name>arrange</name>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Make the same size</source>
        <translation>Gleiche Größe geben</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Space evenly</source>
        <translation>Gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>Size to grid</source>
        <translation>Größe an das Raster anpassen</translation>
    </message>
</context>
<context>
    <name>clipboard</name>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>expected controls</source>
        <translation>Steuerelemente erwartet</translation>
    </message>
</context>
<context>
    <name>code_pages</name>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Japanese (Shift JIS)</source>
        <translation>Japanisch (Shift JIS)</translation>
    </message>
    <message>
        <source>Chinese, simplified (GBK)</source>
        <translation>Chinesisch, vereinfacht (GBK)</translation>
    </message>
    <message>
        <source>Korean (UHC)</source>
        <translation>Koreanisch (UHC)</translation>
    </message>
    <message>
        <source>Chinese, traditional (Big5)</source>
        <translation>Chinesisch, traditionell (Big5)</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Westeuropäisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Korean (Johab)</source>
        <translation>Koreanisch (Johab)</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>Unicode (UTF-8)</translation>
    </message>
    <message>
        <source>%1, code page %2</source>
        <translation>%1, Codepage %2</translation>
    </message>
</context>
<context>
    <name>containers</name>
    <message>
        <source>Bring into view</source>
        <translation>In den sichtbaren Bereich holen</translation>
    </message>
</context>
<context>
    <name>font_text</name>
    <message>
        <source>A font is written like this: %1</source>
        <translation>Eine Schrift wird so geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>form_dialogs</name>
    <message>
        <source>Replace the file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>Saving replaces it.</source>
        <translation>Speichern ersetzt die Datei.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Open forms</source>
        <translation>Formulare öffnen</translation>
    </message>
    <message>
        <source>Forms (*.frm *.ctl *.pag *.dob *.FRM *.CTL *.PAG *.DOB);;All files (*)</source>
        <translation>Formulare (*.frm *.ctl *.pag *.dob *.FRM *.CTL *.PAG *.DOB);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Forms (*.frm *.FRM)</source>
        <translation>Formulare (*.frm *.FRM)</translation>
    </message>
    <message>
        <source>Controls (*.ctl *.CTL)</source>
        <translation>Steuerelemente (*.ctl *.CTL)</translation>
    </message>
    <message>
        <source>Property pages (*.pag *.PAG)</source>
        <translation>Eigenschaftenseiten (*.pag *.PAG)</translation>
    </message>
    <message>
        <source>Documents (*.dob *.DOB)</source>
        <translation>Dokumente (*.dob *.DOB)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the form</source>
        <translation>Formular speichern</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Die Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>Changes that are not saved are lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>The file was changed</source>
        <translation>Die Datei wurde geändert</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened.</source>
        <translation>Ein anderes Programm hat %1 seit dem Öffnen geändert.</translation>
    </message>
    <message>
        <source>Reload takes the file as it is now; Undo brings your version back. Keep mine replaces the file with your version.</source>
        <translation>Neu laden nimmt die Datei, wie sie jetzt ist; Rückgängig bringt Ihre Fassung zurück. Meine behalten ersetzt die Datei durch Ihre Fassung.</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>Show the &amp;difference</source>
        <translation>&amp;Unterschied anzeigen</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Ungespeicherte Arbeit</translation>
    </message>
    <message>
        <source>lumenform ended before this work was saved:
%1</source>
        <translation>lumenform endete, bevor diese Arbeit gespeichert war:
%1</translation>
    </message>
    <message>
        <source>Open it to look at it and save it.</source>
        <translation>Öffnen Sie sie, um sie anzusehen und zu speichern.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>The form was not saved.</source>
        <translation>Das Formular wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Remove the unsaved work?</source>
        <translation>Die ungespeicherte Arbeit entfernen?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n unsaved work(s) for good?</source>
        <translation>
            <numerusform>%n ungespeicherte Arbeit endgültig entfernen?</numerusform>
            <numerusform>%n ungespeicherte Arbeiten endgültig entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be brought back.</source>
        <translation>Sie lässt sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>Returns the name used in code to identify an object.</source>
        <translation>Der Name, mit dem der Code das Objekt bezeichnet.</translation>
    </message>
    <message>
        <source>The number of the control in its control array. Empty if it is in no array.</source>
        <translation>Die Nummer des Steuerelements in seinem Steuerelementfeld. Leer, wenn es in keinem Feld ist.</translation>
    </message>
    <message>
        <source>The position of the control in the tab order, from 0.</source>
        <translation>Der Platz des Steuerelements in der Tabulatorreihenfolge, ab 0.</translation>
    </message>
    <message>
        <source>Determines whether Tab stops at the control.</source>
        <translation>Legt fest, ob die Tabulatortaste beim Steuerelement hält.</translation>
    </message>
    <message>
        <source>A text for the use of the program.</source>
        <translation>Ein Text zur freien Verwendung durch das Programm.</translation>
    </message>
    <message>
        <source>Determines whether the control is visible when the form runs.</source>
        <translation>Legt fest, ob das Steuerelement zur Laufzeit sichtbar ist.</translation>
    </message>
    <message>
        <source>The distance from the left edge of the container to the control.</source>
        <translation>Der Abstand des Steuerelements vom linken Rand des Containers.</translation>
    </message>
    <message>
        <source>The distance from the upper edge of the container to the control.</source>
        <translation>Der Abstand des Steuerelements vom oberen Rand des Containers.</translation>
    </message>
    <message>
        <source>The width of the control.</source>
        <translation>Die Breite des Steuerelements.</translation>
    </message>
    <message>
        <source>The height of the control.</source>
        <translation>Die Höhe des Steuerelements.</translation>
    </message>
    <message>
        <source>The items of the list, one a line.</source>
        <translation>Die Einträge der Liste, je Zeile einer.</translation>
    </message>
    <message>
        <source>The numbers of the items for the use of the program, one a line in the order of the items.</source>
        <translation>Die Nummern der Einträge zur freien Verwendung durch das Programm, je Zeile eine in der Reihenfolge der Einträge.</translation>
    </message>
    <message>
        <source>The key that chooses the menu from anywhere in the form.</source>
        <translation>Die Taste, die das Menü von überall im Formular wählt.</translation>
    </message>
    <message>
        <source>The number of the menu in its control array. Empty if it is in no array.</source>
        <translation>Die Nummer des Menüs in seinem Steuerelementfeld. Leer, wenn es in keinem Feld ist.</translation>
    </message>
    <message>
        <source>Returns/sets the background color used to display text and graphics in an object.</source>
        <translation>Die Hintergrundfarbe, auf der Text und Grafik im Objekt erscheinen.</translation>
    </message>
    <message>
        <source>Returns/sets the border style for an object.</source>
        <translation>Die Art des Rahmens um das Objekt.</translation>
    </message>
    <message>
        <source>Returns/sets a value that determines whether an object can respond to user-generated events.</source>
        <translation>Legt fest, ob das Objekt auf Ereignisse des Benutzers reagiert.</translation>
    </message>
    <message>
        <source>Returns a Font object.</source>
        <translation>Die Schrift des Objekts.</translation>
    </message>
    <message>
        <source>Returns/sets the foreground color used to display text and graphics in an object.</source>
        <translation>Die Vordergrundfarbe, in der Text und Grafik im Objekt erscheinen.</translation>
    </message>
    <message>
        <source>Returns/sets the type of mouse pointer displayed when over part of an object.</source>
        <translation>Die Art des Mauszeigers über dem Objekt.</translation>
    </message>
    <message>
        <source>The alignment of the text.</source>
        <translation>Die Ausrichtung des Textes.</translation>
    </message>
    <message>
        <source>The side of the text on which the mark is drawn.</source>
        <translation>Die Seite des Textes, auf der die Marke gezeichnet wird.</translation>
    </message>
    <message>
        <source>Determines whether the button has its own pictures and background.</source>
        <translation>Legt fest, ob die Schaltfläche eigene Bilder und einen eigenen Hintergrund hat.</translation>
    </message>
    <message>
        <source>The text of the object. The letter after &amp; is its access key.</source>
        <translation>Der Text des Objekts. Der Buchstabe nach &amp; ist seine Zugriffstaste.</translation>
    </message>
    <message>
        <source>The text that appears when the mouse rests on the object.</source>
        <translation>Der Text, der erscheint, wenn die Maus auf dem Objekt ruht.</translation>
    </message>
    <message>
        <source>Determines whether a control can be edited.</source>
        <translation>Legt fest, ob der Inhalt des Steuerelements gesperrt ist.</translation>
    </message>
    <message>
        <source>The colour of the border.</source>
        <translation>Die Farbe des Randes.</translation>
    </message>
    <message>
        <source>The width of the border in pixels.</source>
        <translation>Die Breite des Randes in Pixeln.</translation>
    </message>
    <message>
        <source>The line style of the border. A border wider than one pixel is drawn without gaps.</source>
        <translation>Die Linienart des Randes. Ein Rand, der breiter als ein Pixel ist, wird ohne Lücken gezeichnet.</translation>
    </message>
    <message>
        <source>The unit of measure for the ends of the contained lines.</source>
        <translation>Die Maßeinheit für die Enden der enthaltenen Linien.</translation>
    </message>
    <message>
        <source>The height of the form&apos;s client area in twips.</source>
        <translation>Die Höhe des Innenbereichs des Formulars in Twips.</translation>
    </message>
    <message>
        <source>The width of the form&apos;s client area in twips.</source>
        <translation>Die Breite des Innenbereichs des Formulars in Twips.</translation>
    </message>
    <message>
        <source>The picture of the object.</source>
        <translation>Das Bild des Objekts.</translation>
    </message>
    <message>
        <source>The picture of a pressed button, if Style is 1.</source>
        <translation>Das Bild der gedrückten Schaltfläche, wenn Style 1 ist.</translation>
    </message>
    <message>
        <source>The picture of a disabled button, if Style is 1.</source>
        <translation>Das Bild der deaktivierten Schaltfläche, wenn Style 1 ist.</translation>
    </message>
    <message>
        <source>The mouse pointer, if MousePointer is 99.</source>
        <translation>Der Mauszeiger, wenn MousePointer 99 ist.</translation>
    </message>
    <message>
        <source>The mouse pointer while the object is dragged.</source>
        <translation>Der Mauszeiger, während das Objekt gezogen wird.</translation>
    </message>
    <message>
        <source>Determines whether the control that loses the focus is validated.</source>
        <translation>Legt fest, ob das Steuerelement, das den Fokus verliert, geprüft wird.</translation>
    </message>
    <message>
        <source>Determines whether the mouse or the program starts a drag.</source>
        <translation>Legt fest, ob die Maus oder das Programm ein Ziehen beginnt.</translation>
    </message>
    <message>
        <source>The number of the help topic for F1. 0: none.</source>
        <translation>Die Nummer des Hilfethemas für F1. 0: keines.</translation>
    </message>
    <message>
        <source>The number of the help topic that a popup shows. 0: none.</source>
        <translation>Die Nummer des Hilfethemas, das ein Popupfenster zeigt. 0: keines.</translation>
    </message>
    <message>
        <source>Determines whether the object is flat or looks raised.</source>
        <translation>Legt fest, ob das Objekt flach oder erhaben aussieht.</translation>
    </message>
    <message>
        <source>Determines whether the text runs from right to left.</source>
        <translation>Legt fest, ob der Text von rechts nach links läuft.</translation>
    </message>
    <message>
        <source>Determines how the object takes dropped data.</source>
        <translation>Legt fest, wie das Objekt abgelegte Daten annimmt.</translation>
    </message>
    <message>
        <source>Determines whether the mouse or the program starts a drag of data.</source>
        <translation>Legt fest, ob die Maus oder das Programm das Ziehen von Daten beginnt.</translation>
    </message>
    <message>
        <source>The field of the record that the control shows.</source>
        <translation>Das Feld des Datensatzes, das das Steuerelement zeigt.</translation>
    </message>
    <message>
        <source>The set of records that the control shows.</source>
        <translation>Die Datensatzgruppe, die das Steuerelement zeigt.</translation>
    </message>
    <message>
        <source>The colour of the picture that is transparent.</source>
        <translation>Die Farbe des Bildes, die durchsichtig ist.</translation>
    </message>
    <message>
        <source>Determines whether MaskColor is transparent.</source>
        <translation>Legt fest, ob MaskColor durchsichtig ist.</translation>
    </message>
    <message>
        <source>Determines whether the object keeps what is drawn on it.</source>
        <translation>Legt fest, ob das Objekt behält, was auf ihm gezeichnet wird.</translation>
    </message>
    <message>
        <source>Determines whether drawing leaves out the controls.</source>
        <translation>Legt fest, ob das Zeichnen die Steuerelemente ausspart.</translation>
    </message>
    <message>
        <source>How drawn colours are combined with the background. 13: copied.</source>
        <translation>Wie gezeichnete Farben mit dem Hintergrund verknüpft werden. 13: kopiert.</translation>
    </message>
    <message>
        <source>The style of drawn lines. 0: solid.</source>
        <translation>Die Art gezeichneter Linien. 0: durchgezogen.</translation>
    </message>
    <message>
        <source>The width of drawn lines in pixels.</source>
        <translation>Die Breite gezeichneter Linien in Pixeln.</translation>
    </message>
    <message>
        <source>The colour that fills drawn shapes.</source>
        <translation>Die Farbe, die gezeichnete Formen füllt.</translation>
    </message>
    <message>
        <source>The pattern that fills drawn shapes.</source>
        <translation>Das Muster, das gezeichnete Formen füllt.</translation>
    </message>
    <message>
        <source>Determines whether the background is seen behind drawn text.</source>
        <translation>Legt fest, ob hinter gezeichnetem Text der Hintergrund zu sehen ist.</translation>
    </message>
    <message>
        <source>Determines whether the object has a drawing context of its own.</source>
        <translation>Legt fest, ob das Objekt einen eigenen Zeichenkontext hat.</translation>
    </message>
    <message>
        <source>The state of the check box.</source>
        <translation>Der Zustand des Kontrollkästchens.</translation>
    </message>
    <message>
        <source>Determines whether the user can type a text, choose an item, or both.</source>
        <translation>Legt fest, ob der Benutzer einen Text eingeben, einen Eintrag wählen oder beides kann.</translation>
    </message>
    <message>
        <source>Determines whether the list shows only complete items.</source>
        <translation>Legt fest, ob die Liste nur ganze Einträge zeigt.</translation>
    </message>
    <message>
        <source>Determines whether the items are sorted.</source>
        <translation>Legt fest, ob die Einträge sortiert sind.</translation>
    </message>
    <message>
        <source>The text in the box.</source>
        <translation>Der Text im Feld.</translation>
    </message>
    <message>
        <source>Determines whether Esc presses the button.</source>
        <translation>Legt fest, ob Esc die Schaltfläche drückt.</translation>
    </message>
    <message>
        <source>Determines whether Enter presses the button.</source>
        <translation>Legt fest, ob die Eingabetaste die Schaltfläche drückt.</translation>
    </message>
    <message>
        <source>Determines whether the picture is stretched to the size of the control.</source>
        <translation>Legt fest, ob das Bild auf die Größe des Steuerelements gestreckt wird.</translation>
    </message>
    <message>
        <source>Determines whether the label is resized to fit its text.</source>
        <translation>Legt fest, ob das Bezeichnungsfeld seine Größe dem Text anpasst.</translation>
    </message>
    <message>
        <source>Determines whether the background is transparent or opaque.</source>
        <translation>Legt fest, ob der Hintergrund durchsichtig oder deckend ist.</translation>
    </message>
    <message>
        <source>Determines whether &amp; marks an access key.</source>
        <translation>Legt fest, ob &amp; eine Zugriffstaste kennzeichnet.</translation>
    </message>
    <message>
        <source>With AutoSize: determines whether the label wraps its text and grows downwards.</source>
        <translation>Mit AutoSize: legt fest, ob das Bezeichnungsfeld seinen Text umbricht und nach unten wächst.</translation>
    </message>
    <message>
        <source>Determines whether a check mark is beside the menu.</source>
        <translation>Legt fest, ob neben dem Menü ein Häkchen steht.</translation>
    </message>
    <message>
        <source>The position of the menu in the menu bar while an object with a menu bar of its own is active.</source>
        <translation>Der Platz des Menüs in der Menüleiste, solange ein Objekt mit eigener Menüleiste aktiv ist.</translation>
    </message>
    <message>
        <source>Determines whether the menu is visible when the form runs.</source>
        <translation>Legt fest, ob das Menü zur Laufzeit sichtbar ist.</translation>
    </message>
    <message>
        <source>Determines whether the menu lists the child windows of an MDI form.</source>
        <translation>Legt fest, ob das Menü die untergeordneten Fenster eines MDI-Formulars auflistet.</translation>
    </message>
    <message>
        <source>The horizontal position of the first end of the line.</source>
        <translation>Der waagerechte Platz des ersten Endes der Linie.</translation>
    </message>
    <message>
        <source>The horizontal position of the second end of the line.</source>
        <translation>Der waagerechte Platz des zweiten Endes der Linie.</translation>
    </message>
    <message>
        <source>The vertical position of the first end of the line.</source>
        <translation>Der senkrechte Platz des ersten Endes der Linie.</translation>
    </message>
    <message>
        <source>The vertical position of the second end of the line.</source>
        <translation>Der senkrechte Platz des zweiten Endes der Linie.</translation>
    </message>
    <message>
        <source>The number of visible columns. 0: one column that scrolls up and down.</source>
        <translation>Die Zahl der sichtbaren Spalten. 0: eine Spalte mit senkrechtem Bildlauf.</translation>
    </message>
    <message>
        <source>Determines how many items the user can select.</source>
        <translation>Legt fest, wie viele Einträge der Benutzer auswählen kann.</translation>
    </message>
    <message>
        <source>Determines whether each item has a check box.</source>
        <translation>Legt fest, ob jeder Eintrag ein Kontrollkästchen hat.</translation>
    </message>
    <message>
        <source>Determines whether the option button is selected.</source>
        <translation>Legt fest, ob das Optionsfeld ausgewählt ist.</translation>
    </message>
    <message>
        <source>The edge of the form along which the picture box lies.</source>
        <translation>Der Rand des Formulars, an dem das Bildfeld liegt.</translation>
    </message>
    <message>
        <source>Determines whether the picture box fits its picture.</source>
        <translation>Legt fest, ob das Bildfeld seine Größe dem Bild anpasst.</translation>
    </message>
    <message>
        <source>The change of the value when the user clicks the bar.</source>
        <translation>Die Änderung des Wertes bei einem Klick auf die Leiste.</translation>
    </message>
    <message>
        <source>The value at the right or lower end.</source>
        <translation>Der Wert am rechten oder unteren Ende.</translation>
    </message>
    <message>
        <source>The value at the left or upper end.</source>
        <translation>Der Wert am linken oder oberen Ende.</translation>
    </message>
    <message>
        <source>The change of the value when the user clicks an arrow.</source>
        <translation>Die Änderung des Wertes bei einem Klick auf einen Pfeil.</translation>
    </message>
    <message>
        <source>The position of the scroll box.</source>
        <translation>Die Stellung des Bildlauffelds.</translation>
    </message>
    <message>
        <source>The colour that fills the shape.</source>
        <translation>Die Farbe, die die Form füllt.</translation>
    </message>
    <message>
        <source>The pattern that fills the shape.</source>
        <translation>Das Muster, das die Form füllt.</translation>
    </message>
    <message>
        <source>The kind of shape.</source>
        <translation>Die Art der Form.</translation>
    </message>
    <message>
        <source>Determines whether the selection is hidden without the focus.</source>
        <translation>Legt fest, ob die Auswahl ohne den Fokus verborgen ist.</translation>
    </message>
    <message>
        <source>Returns/sets the maximum number of characters that can be entered in a control.</source>
        <translation>Die größte Zahl der Zeichen, die in das Steuerelement eingegeben werden können.</translation>
    </message>
    <message>
        <source>Determines whether the text box can contain several lines.</source>
        <translation>Legt fest, ob das Textfeld mehrere Zeilen enthalten kann.</translation>
    </message>
    <message>
        <source>The character that is shown in place of each typed character.</source>
        <translation>Das Zeichen, das anstelle jedes eingegebenen Zeichens erscheint.</translation>
    </message>
    <message>
        <source>The scroll bars of the text box.</source>
        <translation>Die Bildlaufleisten des Textfelds.</translation>
    </message>
    <message>
        <source>Returns/sets the text contained in the control.</source>
        <translation>Der Text des Steuerelements.</translation>
    </message>
    <message>
        <source>The time between two events in milliseconds. 0 switches the timer off.</source>
        <translation>Die Zeit zwischen zwei Ereignissen in Millisekunden. 0 schaltet den Zeitgeber aus.</translation>
    </message>
    <message>
        <source>The text in the title bar.</source>
        <translation>Der Text in der Titelleiste.</translation>
    </message>
    <message>
        <source>Determines whether the title bar has a system menu and buttons.</source>
        <translation>Legt fest, ob die Titelleiste ein Systemmenü und Schaltflächen hat.</translation>
    </message>
    <message>
        <source>The icon in the title bar of the form.</source>
        <translation>Das Symbol in der Titelleiste des Formulars.</translation>
    </message>
    <message>
        <source>Determines whether the form receives key events before its controls.</source>
        <translation>Legt fest, ob das Formular Tastenereignisse vor seinen Steuerelementen erhält.</translation>
    </message>
    <message>
        <source>Determines whether the form can be maximized.</source>
        <translation>Legt fest, ob das Formular maximiert werden kann.</translation>
    </message>
    <message>
        <source>Determines whether the form is a child window of an MDI form.</source>
        <translation>Legt fest, ob das Formular ein untergeordnetes Fenster eines MDI-Formulars ist.</translation>
    </message>
    <message>
        <source>Determines whether the form can be minimized.</source>
        <translation>Legt fest, ob das Formular minimiert werden kann.</translation>
    </message>
    <message>
        <source>Determines whether the user can move the form.</source>
        <translation>Legt fest, ob der Benutzer das Formular verschieben kann.</translation>
    </message>
    <message>
        <source>Determines whether the form is shown in the taskbar.</source>
        <translation>Legt fest, ob das Formular in der Taskleiste erscheint.</translation>
    </message>
    <message>
        <source>The position of the form when it is first shown.</source>
        <translation>Der Platz des Formulars, wenn es zum ersten Mal erscheint.</translation>
    </message>
    <message>
        <source>Determines whether the form is visible.</source>
        <translation>Legt fest, ob das Formular sichtbar ist.</translation>
    </message>
    <message>
        <source>Determines whether the title bar has a help button.</source>
        <translation>Legt fest, ob die Titelleiste eine Hilfeschaltfläche hat.</translation>
    </message>
    <message>
        <source>Determines whether help topics are shown in a popup.</source>
        <translation>Legt fest, ob Hilfethemen in einem Popupfenster erscheinen.</translation>
    </message>
    <message>
        <source>The state of the window when it is first shown.</source>
        <translation>Der Zustand des Fensters, wenn es zum ersten Mal erscheint.</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Add a control to the selection, or remove it</source>
        <translation>Ein Steuerelement hinzuwählen oder abwählen</translation>
    </message>
    <message>
        <source>Shift+click or Ctrl+click</source>
        <translation>Umschalt+Klick oder Strg+Klick</translation>
    </message>
    <message>
        <source>Select the next or previous control</source>
        <translation>Das nächste oder vorige Steuerelement auswählen</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>Select the form; cancel a drag</source>
        <translation>Das Formular auswählen; ein Ziehen abbrechen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Move by a grid step</source>
        <translation>Um einen Rasterschritt verschieben</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move by a pixel</source>
        <translation>Um ein Pixel verschieben</translation>
    </message>
    <message>
        <source>Ctrl+arrow keys</source>
        <translation>Strg+Pfeiltasten</translation>
    </message>
    <message>
        <source>Resize by a grid step</source>
        <translation>Größe um einen Rasterschritt ändern</translation>
    </message>
    <message>
        <source>Shift+arrow keys</source>
        <translation>Umschalt+Pfeiltasten</translation>
    </message>
    <message>
        <source>Ignore the grid while dragging</source>
        <translation>Das Raster beim Ziehen nicht beachten</translation>
    </message>
    <message>
        <source>hold Alt</source>
        <translation>Alt halten</translation>
    </message>
    <message>
        <source>Keep the container while dropping</source>
        <translation>Den Container beim Ablegen behalten</translation>
    </message>
    <message>
        <source>hold Ctrl</source>
        <translation>Strg halten</translation>
    </message>
    <message>
        <source>Edit the selected control</source>
        <translation>Das ausgewählte Steuerelement bearbeiten</translation>
    </message>
    <message>
        <source>Enter or double click</source>
        <translation>Eingabe oder Doppelklick</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Change the order</source>
        <translation>Die Reihenfolge ändern</translation>
    </message>
    <message>
        <source>Alt+Up, Alt+Down, or drag</source>
        <translation>Alt+Auf, Alt+Ab oder Ziehen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Go to the properties</source>
        <translation>Zu den Eigenschaften gehen</translation>
    </message>
    <message>
        <source>Property list</source>
        <translation>Eigenschaftenliste</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>Nach einer Eigenschaft suchen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>Edit the value with a list or a dialog</source>
        <translation>Den Wert mit einer Liste oder einem Dialog bearbeiten</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>Auf den Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Ctrl+Del</source>
        <translation>Strg+Entf</translation>
    </message>
    <message>
        <source>Toolbox</source>
        <translation>Werkzeugsammlung</translation>
    </message>
    <message>
        <source>Put a control into the middle of the form</source>
        <translation>Ein Steuerelement in die Mitte des Formulars setzen</translation>
    </message>
    <message>
        <source>Draw a control</source>
        <translation>Ein Steuerelement zeichnen</translation>
    </message>
    <message>
        <source>click, then drag on the form</source>
        <translation>klicken, dann auf dem Formular ziehen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Open the menus</source>
        <translation>Die Menüs öffnen</translation>
    </message>
    <message>
        <source>F10</source>
        <translation>F10</translation>
    </message>
    <message>
        <source>Open the context menu</source>
        <translation>Das Kontextmenü öffnen</translation>
    </message>
    <message>
        <source>Shift+F10 or Menu</source>
        <translation>Umschalt+F10 oder Menütaste</translation>
    </message>
    <message>
        <source>Show or hide the event log of a form that runs in its own window</source>
        <translation>Das Ereignisprotokoll eines Formulars, das in einem eigenen Fenster läuft, ein- oder ausblenden</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Leave the form</source>
        <translation>Das Formular verlassen</translation>
    </message>
    <message>
        <source>F6, Shift+F6</source>
        <translation>F6, Umschalt+F6</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Um den Mauszeiger zoomen</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Search the code</source>
        <translation>Den Code durchsuchen</translation>
    </message>
    <message>
        <source>Go to the next or previous hit</source>
        <translation>Zum nächsten oder vorigen Treffer gehen</translation>
    </message>
    <message>
        <source>F3, Shift+F3</source>
        <translation>F3, Umschalt+F3</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Die Suche schließen</translation>
    </message>
    <message>
        <source>Dialog of the menus</source>
        <translation>Dialog der Menüs</translation>
    </message>
    <message>
        <source>Insert a menu</source>
        <translation>Ein Menü einfügen</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete the menu</source>
        <translation>Das Menü löschen</translation>
    </message>
    <message>
        <source>Move the menu</source>
        <translation>Das Menü verschieben</translation>
    </message>
    <message>
        <source>Alt+Up, Alt+Down</source>
        <translation>Alt+Auf, Alt+Ab</translation>
    </message>
    <message>
        <source>Move the menu into or out of a submenu</source>
        <translation>Das Menü in ein Untermenü oder aus ihm heraus verschieben</translation>
    </message>
    <message>
        <source>Alt+Right, Alt+Left</source>
        <translation>Alt+Rechts, Alt+Links</translation>
    </message>
    <message>
        <source>Dialogs of lists and texts</source>
        <translation>Dialoge für Listen und Texte</translation>
    </message>
    <message>
        <source>Move the item</source>
        <translation>Den Eintrag verschieben</translation>
    </message>
    <message>
        <source>Take the text over</source>
        <translation>Den Text übernehmen</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Strg+Eingabe</translation>
    </message>
    <message>
        <source>Recent forms</source>
        <translation>Zuletzt geöffnete Formulare</translation>
    </message>
    <message>
        <source>Open the form</source>
        <translation>Das Formular öffnen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Remove the form from the list</source>
        <translation>Das Formular aus der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>likeness</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ChangedBar</name>
    <message>
        <source>Take the file as it is now; Undo brings your version back</source>
        <translation>Die Datei nehmen, wie sie jetzt ist; Rückgängig bringt Ihre Fassung zurück</translation>
    </message>
    <message>
        <source>Save your version in its place next time</source>
        <translation>Beim nächsten Speichern Ihre Fassung an ihre Stelle setzen</translation>
    </message>
    <message>
        <source>Compare the file with your version</source>
        <translation>Die Datei mit Ihrer Fassung vergleichen</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Ein anderes Programm hat %1 geändert.</translation>
    </message>
    <message>
        <source>%1 no longer exists. Save writes it again.</source>
        <translation>%1 gibt es nicht mehr. Speichern schreibt die Datei neu.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>Show the &amp;difference</source>
        <translation>&amp;Unterschied anzeigen</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::CodeSearch</name>
    <message>
        <source>Search the code</source>
        <translation>Code durchsuchen</translation>
    </message>
    <message>
        <source>Previous hit (Shift+F3)</source>
        <translation>Voriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next hit (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Close the search (Esc)</source>
        <translation>Suche schließen (Esc)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>1 hit</source>
        <translation>1 Treffer</translation>
    </message>
    <message numerus="yes">
        <source>%n hits</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::CodeText</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>This form has no code.</source>
        <translation>Dieses Formular hat keinen Code.</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Zeilennummern</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ColorDialog</name>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Other...</source>
        <translation>&amp;Andere...</translation>
    </message>
    <message>
        <source>System colours</source>
        <translation>Systemfarben</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ContentsDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Auf</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Ab</translation>
    </message>
    <message>
        <source>As &amp;text...</source>
        <translation>Als &amp;Text...</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::DesignWindow</name>
    <message>
        <source>&amp;Run</source>
        <translation>A&amp;usführen</translation>
    </message>
    <message>
        <source>&amp;Run the form</source>
        <translation>Formular &amp;ausführen</translation>
    </message>
    <message>
        <source>Run the form for a trial, or return to the designer (F5)</source>
        <translation>Das Formular zur Probe ausführen oder zum Entwurf zurückkehren (F5)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, geändert am %2</translation>
    </message>
    <message>
        <source>Recovered changes</source>
        <translation>Wiederhergestellte Änderungen</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>lumenform</source>
        <translation>lumenform</translation>
    </message>
    <message>
        <source>%1[*] (running) – lumenform</source>
        <translation>%1[*] (läuft) – lumenform</translation>
    </message>
    <message>
        <source>%1[*] (code) – lumenform</source>
        <translation>%1[*] (Code) – lumenform</translation>
    </message>
    <message>
        <source>%1[*] – lumenform</source>
        <translation>%1[*] – lumenform</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::EncodingOffer</name>
    <message>
        <source>No code page has all characters of the form</source>
        <translation>Keine Codepage hat alle Zeichen des Formulars</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::EventLog</name>
    <message>
        <source>Control</source>
        <translation>Steuerelement</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Read in code &amp;page</source>
        <translation>In &amp;Codepage lesen</translation>
    </message>
    <message>
        <source>&amp;Write in code page</source>
        <translation>In Codepage sch&amp;reiben</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Close the form</source>
        <translation>Formular schl&amp;ießen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::FilterBar</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filter (Strg+F)</translation>
    </message>
    <message>
        <source>Filter of the properties</source>
        <translation>Filter der Eigenschaften</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Group the properties, or sort them by name</source>
        <translation>Die Eigenschaften gruppieren oder nach Namen sortieren</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::FormCommands</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>Ca&amp;ption…</source>
        <translation>&amp;Beschriftung…</translation>
    </message>
    <message>
        <source>Edit the caption with its markup and a live preview</source>
        <translation>Die Beschriftung mit ihrer Auszeichnung und einer Vorschau bearbeiten</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>E&amp;igenschaften</translation>
    </message>
    <message>
        <source>&amp;Menus…</source>
        <translation>&amp;Menüs…</translation>
    </message>
    <message>
        <source>Add, edit and rearrange the menus of the form</source>
        <translation>Die Menüs des Formulars hinzufügen, bearbeiten und umordnen</translation>
    </message>
    <message>
        <source>Ta&amp;b order</source>
        <translation>&amp;Tabulatorreihenfolge</translation>
    </message>
    <message>
        <source>Click the controls in the tab order that they should have</source>
        <translation>Klicken Sie die Steuerelemente in der gewünschten Tabulatorreihenfolge an</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>R&amp;edo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alles auswä&amp;hlen</translation>
    </message>
    <message>
        <source>Make the same &amp;size</source>
        <translation>&amp;Gleiche Größe</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>B&amp;eide</translation>
    </message>
    <message>
        <source>&amp;Center in the form</source>
        <translation>Im Formular &amp;zentrieren</translation>
    </message>
    <message>
        <source>S&amp;pace evenly</source>
        <translation>Gleichmäßig &amp;verteilen</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>&amp;Vertikal</translation>
    </message>
    <message>
        <source>Size to &amp;grid</source>
        <translation>Größe an das &amp;Raster anpassen</translation>
    </message>
    <message>
        <source>Bring into &amp;view</source>
        <translation>In den sichtbaren &amp;Bereich holen</translation>
    </message>
    <message>
        <source>Move the selected controls inside the form and their containers, or without a selection all controls that are out of view</source>
        <translation>Die ausgewählten Steuerelemente in das Formular und ihre Container holen, ohne Auswahl alle Steuerelemente außerhalb des sichtbaren Bereichs</translation>
    </message>
    <message>
        <source>&amp;Align</source>
        <translation>&amp;Ausrichten</translation>
    </message>
    <message>
        <source>&amp;Lefts</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Centers</source>
        <translation>&amp;Zentriert</translation>
    </message>
    <message>
        <source>&amp;Rights</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Tops</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>&amp;Middles</source>
        <translation>&amp;Mittig</translation>
    </message>
    <message>
        <source>&amp;Bottoms</source>
        <translation>&amp;Unten</translation>
    </message>
    <message>
        <source>Bring to &amp;front</source>
        <translation>In den V&amp;ordergrund</translation>
    </message>
    <message>
        <source>Send to bac&amp;k</source>
        <translation>In den &amp;Hintergrund</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::FormDesign</name>
    <message>
        <source>Read again</source>
        <translation>Neu lesen</translation>
    </message>
    <message>
        <source>Write in another code page</source>
        <translation>In einer anderen Codepage schreiben</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::FormTab</name>
    <message>
        <source>No copy of the unsaved changes can be kept in %1</source>
        <translation>In %1 kann keine Kopie der ungespeicherten Änderungen aufbewahrt werden</translation>
    </message>
    <message>
        <source>%1 is open in another tab.</source>
        <translation>%1 ist in einer anderen Registerkarte geöffnet.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Read again. Undo brings your version back.</source>
        <translation>Neu gelesen. Rückgängig bringt Ihre Fassung zurück.</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::Glass</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>The form is selected</source>
        <translation>Das Formular ist ausgewählt</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse…</source>
        <translation>&amp;Tastatur und Maus…</translation>
    </message>
    <message>
        <source>&amp;About lumenform</source>
        <translation>Ü&amp;ber lumenform</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>About lumenform</source>
        <translation>Über lumenform</translation>
    </message>
    <message>
        <source>lumenform %1</source>
        <translation>lumenform %1</translation>
    </message>
    <message>
        <source>Designs, runs and draws forms with the controls of lumenkit, on Qt %1.

Copyright (c) 2026 the lumenkit authors. It is free software under the MIT licence. Its icons are those of Breeze, copyright (c) 2014 Uri Herrera and others, under the GNU Lesser General Public License, version 3 or later.</source>
        <translation>Entwirft Formulare mit den Steuerelementen von lumenkit, führt sie aus und zeichnet sie; mit Qt %1.

Copyright (c) 2026 the lumenkit authors. Das Programm ist freie Software unter der MIT-Lizenz. Seine Symbole sind die von Breeze, Copyright (c) 2014 Uri Herrera and others, unter der GNU Lesser General Public License, Version 3 oder später.</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::KeysDialog</name>
    <message>
        <source>Keys and mouse</source>
        <translation>Tastatur und Maus</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::MentionBar</name>
    <message>
        <source>&amp;Show in code</source>
        <translation>&amp;Im Code zeigen</translation>
    </message>
    <message>
        <source>Open the code at the first of these procedures</source>
        <translation>Den Code bei der ersten dieser Prozeduren öffnen</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::MenuFields</name>
    <message>
        <source>Cap&amp;tion:</source>
        <translation>&amp;Beschriftung:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Inde&amp;x:</source>
        <translation>Inde&amp;x:</translation>
    </message>
    <message>
        <source>The letter after &amp; is the access key. A single - is a separator.</source>
        <translation>Der Buchstabe nach &amp; ist die Zugriffstaste. Ein einzelnes - ist eine Trennlinie.</translation>
    </message>
    <message>
        <source>The number in a control array. Empty: in no array.</source>
        <translation>Die Nummer in einem Steuerelementfeld. Leer: in keinem Feld.</translation>
    </message>
    <message>
        <source>&amp;Shortcut:</source>
        <translation>Tasten&amp;kürzel:</translation>
    </message>
    <message>
        <source>Ne&amp;gotiate position:</source>
        <translation>&amp;Platz in der Leiste:</translation>
    </message>
    <message>
        <source>&amp;Help context:</source>
        <translation>Hil&amp;fethema:</translation>
    </message>
    <message>
        <source>0 - None</source>
        <translation>0 - None</translation>
    </message>
    <message>
        <source>1 - Left</source>
        <translation>1 - Left</translation>
    </message>
    <message>
        <source>2 - Middle</source>
        <translation>2 - Middle</translation>
    </message>
    <message>
        <source>3 - Right</source>
        <translation>3 - Right</translation>
    </message>
    <message>
        <source>The place in the menu bar while an object with menus of its own is active</source>
        <translation>Der Platz in der Menüleiste, solange ein Objekt mit eigenen Menüs aktiv ist</translation>
    </message>
    <message>
        <source>The number of the help topic for F1. 0: none</source>
        <translation>Die Nummer des Hilfethemas für F1. 0: keines</translation>
    </message>
    <message>
        <source>Chec&amp;ked</source>
        <translation>Mit Häk&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>&amp;Aktiviert</translation>
    </message>
    <message>
        <source>&amp;Visible</source>
        <translation>&amp;Sichtbar</translation>
    </message>
    <message>
        <source>&amp;Window list</source>
        <translation>&amp;MDI-Fenster</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::MenuTree</name>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::MenusDialog</name>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>&amp;Insert before</source>
        <translation>Davor &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Add after</source>
        <translation>Danach &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add se&amp;parator</source>
        <translation>&amp;Trennlinie hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Move down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation>Nach l&amp;inks</translation>
    </message>
    <message>
        <source>Move &amp;right</source>
        <translation>Nach &amp;rechts</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::Notice</name>
    <message>
        <source>Write the form in UTF-8</source>
        <translation>Das Formular in UTF-8 schreiben</translation>
    </message>
    <message>
        <source>Another code page…</source>
        <translation>Andere Codepage…</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::Outline</name>
    <message>
        <source>Search the outline</source>
        <translation>Gliederung durchsuchen</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::OutlineModel</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>%1, %2, out of view</source>
        <translation>%1, %2, nicht sichtbar</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1: out of view. Format &gt; Bring into view moves it inside.</source>
        <translation>%1: nicht sichtbar. Format &gt; In den sichtbaren Bereich holen verschiebt es dorthin.</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PageDialog</name>
    <message>
        <source>Apply changes?</source>
        <translation>Änderungen übernehmen?</translation>
    </message>
    <message>
        <source>Apply the changes to %1?</source>
        <translation>Die Änderungen an %1 übernehmen?</translation>
    </message>
    <message>
        <source>Changes that are not applied are lost.</source>
        <translation>Nicht übernommene Änderungen gehen verloren.</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PictureDialog</name>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>  %1 x %2 pixels</source>
        <translation>  %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: The file is larger than 64 MB.</source>
        <translation>%1: Die Datei ist größer als 64 MB.</translation>
    </message>
    <message>
        <source>Load a picture</source>
        <translation>Bild laden</translation>
    </message>
    <message>
        <source>Pictures (*.bmp *.dib *.gif *.jpg *.jpeg *.ico *.cur *.wmf *.emf *.png *.BMP *.GIF *.JPG *.ICO *.CUR *.WMF *.EMF *.PNG)</source>
        <translation>Bilder (*.bmp *.dib *.gif *.jpg *.jpeg *.ico *.cur *.wmf *.emf *.png *.BMP *.GIF *.JPG *.ICO *.CUR *.WMF *.EMF *.PNG)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Bild speichern</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PlaceStatus</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 × %2 at %3, %4 twips</source>
        <translation>%1 × %2 bei %3, %4 Twips</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n controls, the last %1: %2</source>
        <translation>
            <numerusform>%n Steuerelement, das letzte %1: %2</numerusform>
            <numerusform>%n Steuerelemente, das letzte %1: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>Code page %1</source>
        <translation>Codepage %1</translation>
    </message>
    <message>
        <source>The form is written in %1. File &gt; Read in code page reads the file in another one.</source>
        <translation>Das Formular ist in %1 geschrieben. Datei &gt; In Codepage lesen liest die Datei in einer anderen.</translation>
    </message>
    <message>
        <source>The scale of the form; Ctrl and the wheel change it, too</source>
        <translation>Der Maßstab des Formulars; Strg und das Mausrad ändern ihn auch</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ProcedureList</name>
    <message>
        <source>Procedures</source>
        <translation>Prozeduren</translation>
    </message>
    <message>
        <source>Mention %1</source>
        <translation>Erwähnen %1</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PropertyBrowser</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>No property contains &quot;%1&quot;.</source>
        <translation>Keine Eigenschaft enthält „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>%n controls</source>
        <translation>
            <numerusform>%n Steuerelement</numerusform>
            <numerusform>%n Steuerelemente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n menus</source>
        <translation>
            <numerusform>%n Menü</numerusform>
            <numerusform>%n Menüs</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>A colour is a number from 0 to &amp;HFFFFFF, or a system colour from &amp;H80000000 to &amp;H80000018</source>
        <translation>Eine Farbe ist eine Zahl von 0 bis &amp;HFFFFFF oder eine Systemfarbe von &amp;H80000000 bis &amp;H80000018</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PropertyModel</name>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::PropertyTable</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Reset to default	Ctrl+Del</source>
        <translation>Auf den Standardwert &amp;zurücksetzen	Strg+Entf</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::RecentForms</name>
    <message>
        <source>Recent forms</source>
        <translation>Zuletzt geöffnete Formulare</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::RunPage</name>
    <message>
        <source>The form is running. Changes made here are not saved.</source>
        <translation>Das Formular läuft. Änderungen hier werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Back to the design (F5)</source>
        <translation>Zurück zum Entwurf (F5)</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::RunWindow</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Event log</source>
        <translation>&amp;Ereignisprotokoll</translation>
    </message>
    <message>
        <source>&amp;Clear the log</source>
        <translation>Protokoll &amp;leeren</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::StartPage</name>
    <message>
        <source>Recent forms</source>
        <translation>Zuletzt geöffnete Formulare</translation>
    </message>
    <message>
        <source>lumenform</source>
        <translation>lumenform</translation>
    </message>
    <message>
        <source>Designs and runs forms with the controls of lumenkit. Open a form to see it as its users do and to change its controls. Unchanged parts of the form are saved byte for byte.</source>
        <translation>Entwirft Formulare mit den Steuerelementen von lumenkit und führt sie aus. Öffnen Sie ein Formular, um es wie seine Benutzer zu sehen und seine Steuerelemente zu ändern. Unveränderte Teile des Formulars werden Byte für Byte gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Open a form</source>
        <translation>Formular ö&amp;ffnen</translation>
    </message>
    <message>
        <source>A form file (.frm, .ctl, .pag, .dob). You can also drop a file on this window.</source>
        <translation>Eine Formulardatei (.frm, .ctl, .pag, .dob). Sie können auch eine Datei auf dieses Fenster ziehen.</translation>
    </message>
    <message>
        <source>&amp;New form</source>
        <translation>&amp;Neues Formular</translation>
    </message>
    <message>
        <source>An empty form. Choose a control in the toolbox and draw it.</source>
        <translation>Ein leeres Formular. Wählen Sie in der Werkzeugsammlung ein Steuerelement und zeichnen Sie es.</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::TextDialog</name>
    <message>
        <source>One item a line: value;caption. Ctrl+Enter: OK</source>
        <translation>Ein Eintrag je Zeile: Wert;Beschriftung. Strg+Eingabe: OK</translation>
    </message>
    <message>
        <source>One item a line. Ctrl+Enter: OK</source>
        <translation>Ein Eintrag je Zeile. Strg+Eingabe: OK</translation>
    </message>
    <message>
        <source>Ctrl+Enter: OK</source>
        <translation>Strg+Eingabe: OK</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::Toolbox</name>
    <message>
        <source>Search the toolbox</source>
        <translation>Werkzeuge suchen</translation>
    </message>
    <message>
        <source>Toolbox</source>
        <translation>Werkzeugsammlung</translation>
    </message>
    <message>
        <source>On this form</source>
        <translation>Auf diesem Formular</translation>
    </message>
    <message>
        <source>%1: draw it on the form, or double-click to add it in the middle</source>
        <translation>%1: auf dem Formular zeichnen oder per Doppelklick in die Mitte setzen</translation>
    </message>
    <message>
        <source>&amp;Draw on the form</source>
        <translation>Auf dem Formular &amp;zeichnen</translation>
    </message>
    <message>
        <source>&amp;Put into the middle of the form</source>
        <translation>In die &amp;Mitte des Formulars setzen</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ValueEditor</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More (F4)</source>
        <translation>Mehr (F4)</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Code</source>
        <translation>&amp;Code</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Formular</translation>
    </message>
    <message>
        <source>&amp;Outline</source>
        <translation>&amp;Gliederung</translation>
    </message>
    <message>
        <source>The code of the form, at the first procedure of the selected control</source>
        <translation>Der Code des Formulars, bei der ersten Prozedur des ausgewählten Steuerelements</translation>
    </message>
    <message>
        <source>The tree of the form&apos;s objects</source>
        <translation>Der Baum der Objekte des Formulars</translation>
    </message>
    <message>
        <source>Show the &amp;grid</source>
        <translation>Raster &amp;anzeigen</translation>
    </message>
    <message>
        <source>&amp;Snap to the grid</source>
        <translation>Am &amp;Raster ausrichten</translation>
    </message>
    <message>
        <source>Hold Alt while dragging to ignore the grid</source>
        <translation>Halten Sie beim Ziehen Alt, um das Raster nicht zu beachten</translation>
    </message>
    <message>
        <source>Snap to &amp;other controls</source>
        <translation>An anderen &amp;Steuerelementen ausrichten</translation>
    </message>
    <message>
        <source>A dragged edge or baseline stops at those of the controls beside it; hold Alt to ignore them</source>
        <translation>Eine gezogene Kante oder Grundlinie rastet an denen der Steuerelemente daneben ein; mit Alt nicht</translation>
    </message>
    <message>
        <source>Grid s&amp;tep</source>
        <translation>Raster&amp;weite</translation>
    </message>
    <message>
        <source>%1 twips</source>
        <translation>%1 Twips</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Rulers in the units of the form</source>
        <translation>Lineale in den Einheiten des Formulars</translation>
    </message>
    <message>
        <source>&amp;Next part of the window</source>
        <translation>&amp;Nächster Teil des Fensters</translation>
    </message>
    <message>
        <source>&amp;Previous part of the window</source>
        <translation>&amp;Voriger Teil des Fensters</translation>
    </message>
</context>
<context>
    <name>lumenkit::lumenform::ZoomMenu</name>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Fit the form</source>
        <translation>Formular &amp;einpassen</translation>
    </message>
    <message>
        <source>Show the whole form as large as possible</source>
        <translation>Das ganze Formular so groß wie möglich zeigen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>lumenkit::widgets::ContentsModel</name>
    <message>
        <source>| separates the items. A value or a caption cannot contain it.</source>
        <translation>| trennt die Einträge. Ein Wert oder eine Beschriftung kann es nicht enthalten.</translation>
    </message>
    <message>
        <source>; separates the value from the caption. A value cannot contain it.</source>
        <translation>; trennt den Wert von der Beschriftung. Ein Wert kann es nicht enthalten.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
</context>
<context>
    <name>lumenkit::widgets::ContentsTable</name>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
</context>
<context>
    <name>mention_message</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other names</source>
        <translation>
            <numerusform>%1 und %n anderen Namen</numerusform>
            <numerusform>%1 und %n andere Namen</numerusform>
        </translation>
    </message>
    <message>
        <source>The declarations still mention %1</source>
        <translation>Die Deklarationen erwähnen noch %1</translation>
    </message>
    <message>
        <source>%1 and the declarations</source>
        <translation>%1 und die Deklarationen</translation>
    </message>
    <message>
        <source>%1, %2 and the declarations</source>
        <translation>%1, %2 und die Deklarationen</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n other procedures and the declarations</source>
        <translation>
            <numerusform>%1, %n andere Prozedur und die Deklarationen</numerusform>
            <numerusform>%1, %n andere Prozeduren und die Deklarationen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 still mention %2</source>
        <translation>%1 erwähnen noch %2</translation>
    </message>
    <message>
        <source>%1 still mentions %2</source>
        <translation>%1 erwähnt noch %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other procedures</source>
        <translation>
            <numerusform>%1 und %n andere Prozedur</numerusform>
            <numerusform>%1 und %n andere Prozeduren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>menu_rules</name>
    <message>
        <source>A menu needs a name</source>
        <translation>Ein Menü braucht einen Namen</translation>
    </message>
    <message>
        <source>A name begins with a letter, continues with letters, digits and underscores, and has at most 40 characters</source>
        <translation>Ein Name beginnt mit einem Buchstaben, besteht sonst aus Buchstaben, Ziffern und Unterstrichen und hat höchstens 40 Zeichen</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already taken by the form or a control</source>
        <translation>Den Namen „%1“ hat schon das Formular oder ein Steuerelement</translation>
    </message>
    <message>
        <source>An index must be from 0 to 32767</source>
        <translation>Ein Index muss zwischen 0 und 32767 liegen</translation>
    </message>
    <message>
        <source>Another menu has the name &quot;%1&quot;. Give both an index to make them an array</source>
        <translation>Ein anderes Menü hat den Namen „%1“. Geben Sie beiden einen Index, um ein Feld aus ihnen zu machen</translation>
    </message>
    <message>
        <source>Another menu is &quot;%1&quot;</source>
        <translation>Ein anderes Menü ist „%1“</translation>
    </message>
    <message>
        <source>The elements of the array &quot;%1&quot; must follow each other in one menu</source>
        <translation>Die Elemente des Feldes „%1“ müssen in einem Menü aufeinander folgen</translation>
    </message>
    <message>
        <source>The indices of the array &quot;%1&quot; must rise from menu to menu</source>
        <translation>Die Indizes des Feldes „%1“ müssen von Menü zu Menü steigen</translation>
    </message>
    <message numerus="yes">
        <source>Menus have at most %n levels below the menu bar</source>
        <translation>
            <numerusform>Menüs haben höchstens %n Ebene unter der Menüleiste</numerusform>
            <numerusform>Menüs haben höchstens %n Ebenen unter der Menüleiste</numerusform>
        </translation>
    </message>
    <message>
        <source>A separator cannot be in the menu bar itself</source>
        <translation>Eine Trennlinie kann nicht in der Menüleiste selbst stehen</translation>
    </message>
    <message>
        <source>A menu in the menu bar cannot be checked</source>
        <translation>Ein Menü in der Menüleiste kann kein Häkchen haben</translation>
    </message>
    <message>
        <source>A menu in the menu bar cannot have a shortcut key</source>
        <translation>Ein Menü in der Menüleiste kann kein Tastenkürzel haben</translation>
    </message>
    <message>
        <source>A separator cannot contain menus</source>
        <translation>Eine Trennlinie kann keine Menüs enthalten</translation>
    </message>
    <message>
        <source>A menu that contains others cannot be checked</source>
        <translation>Ein Menü, das andere enthält, kann kein Häkchen haben</translation>
    </message>
    <message>
        <source>A menu that contains others cannot have a shortcut key</source>
        <translation>Ein Menü, das andere enthält, kann kein Tastenkürzel haben</translation>
    </message>
    <message>
        <source>A separator cannot be checked</source>
        <translation>Eine Trennlinie kann kein Häkchen haben</translation>
    </message>
    <message>
        <source>A separator cannot have a shortcut key</source>
        <translation>Eine Trennlinie kann kein Tastenkürzel haben</translation>
    </message>
    <message>
        <source>Another menu has the shortcut key %1</source>
        <translation>Ein anderes Menü hat das Tastenkürzel %1</translation>
    </message>
    <message>
        <source>Only one menu of a form can list the windows</source>
        <translation>Nur ein Menü eines Formulars kann die Fenster auflisten</translation>
    </message>
</context>
<context>
    <name>menus</name>
    <message>
        <source>The menus of the form have changed meanwhile</source>
        <translation>Die Menüs des Formulars haben sich inzwischen geändert</translation>
    </message>
    <message>
        <source>Edit the menus</source>
        <translation>Menüs bearbeiten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no shortcut key of a menu</source>
        <translation>„%1“ ist kein Tastenkürzel eines Menüs</translation>
    </message>
    <message>
        <source>(None)</source>
        <translation>(Keines)</translation>
    </message>
</context>
<context>
    <name>new_control</name>
    <message>
        <source>Add a control</source>
        <translation>Steuerelement hinzufügen</translation>
    </message>
</context>
<context>
    <name>opened_message</name>
    <message numerus="yes">
        <source>%1 (and %n more; &quot;lumenkit check&quot; lists them)</source>
        <translation>
            <numerusform>%1 (und %n weitere; „lumenkit check“ zeigt sie)</numerusform>
            <numerusform>%1 (und %n weitere; „lumenkit check“ zeigt sie)</numerusform>
        </translation>
    </message>
    <message>
        <source>read as %1, because its fonts have this character set; File &gt; Read in code page changes this</source>
        <translation>gelesen als %1, weil die Schriften diesen Zeichensatz haben; Datei &gt; In Codepage lesen ändert das</translation>
    </message>
    <message>
        <source>read as %1, because its bytes look like it; File &gt; Read in code page changes this</source>
        <translation>gelesen als %1, weil die Bytes danach aussehen; Datei &gt; In Codepage lesen ändert das</translation>
    </message>
</context>
<context>
    <name>outline</name>
    <message>
        <source>Move %1 up</source>
        <translation>%1 nach oben verschieben</translation>
    </message>
    <message>
        <source>Move %1 down</source>
        <translation>%1 nach unten verschieben</translation>
    </message>
    <message>
        <source>Change the order of %1</source>
        <translation>Reihenfolge ändern: %1</translation>
    </message>
    <message>
        <source>Move %1 into %2</source>
        <translation>%1 in %2 verschieben</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>picture_format</name>
    <message>
        <source>Bitmap</source>
        <translation>Bitmap</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Mauszeiger</translation>
    </message>
    <message>
        <source>Metafile</source>
        <translation>Metadatei</translation>
    </message>
    <message>
        <source>Enhanced metafile</source>
        <translation>Erweiterte Metadatei</translation>
    </message>
    <message>
        <source>Icon holds an icon file (ICO).</source>
        <translation>Icon nimmt eine Symboldatei (ICO) auf.</translation>
    </message>
    <message>
        <source>%1 holds an icon or a cursor (ICO, CUR).</source>
        <translation>%1 nimmt ein Symbol oder einen Mauszeiger (ICO, CUR) auf.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>Forms hold no PNG pictures. It becomes a bitmap, with white in its transparent parts.</source>
        <translation>Formulare enthalten keine PNG-Bilder. Es wird eine Bitmap, mit Weiß an den durchsichtigen Stellen.</translation>
    </message>
    <message>
        <source>Forms hold no PNG pictures. It becomes a bitmap.</source>
        <translation>Formulare enthalten keine PNG-Bilder. Es wird eine Bitmap.</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keines)</translation>
    </message>
    <message>
        <source>other format</source>
        <translation>anderes Format</translation>
    </message>
    <message>
        <source>(%1, %2 KB)</source>
        <translation>(%1, %2 KB)</translation>
    </message>
    <message>
        <source>Forms hold bitmaps, GIF, JPEG, icons, cursors and metafiles (BMP, GIF, JPG, ICO, CUR, WMF, EMF). A PNG file becomes a bitmap.</source>
        <translation>Formulare enthalten Bitmaps, GIF, JPEG, Symbole, Mauszeiger und Metadateien (BMP, GIF, JPG, ICO, CUR, WMF, EMF). Eine PNG-Datei wird eine Bitmap.</translation>
    </message>
</context>
<context>
    <name>procedure_list</name>
    <message>
        <source>(Declarations)</source>
        <translation>(Deklarationen)</translation>
    </message>
</context>
<context>
    <name>properties</name>
    <message>
        <source>(group)</source>
        <translation>(Gruppe)</translation>
    </message>
    <message>
        <source>The pages are 0 to %1.</source>
        <translation>Die Seiten sind 0 bis %1.</translation>
    </message>
</context>
<context>
    <name>property_groups</name>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Verschiedenes</translation>
    </message>
</context>
<context>
    <name>records</name>
    <message>
        <source>an item has a line break</source>
        <translation>ein Eintrag hat einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>expected one number for each of the %1 items, found %2</source>
        <translation>für jeden der %1 Einträge wird eine Nummer erwartet, gefunden: %2</translation>
    </message>
    <message>
        <source>the form does not refer to a picture</source>
        <translation>das Formular verweist auf kein Bild</translation>
    </message>
    <message>
        <source>its record in the companion is missing</source>
        <translation>der Datensatz in der Begleitdatei fehlt</translation>
    </message>
    <message>
        <source>(companion)</source>
        <translation>(Begleitdatei)</translation>
    </message>
    <message>
        <source>It cannot be edited here: %1.</source>
        <translation>Hier nicht zu bearbeiten: %1.</translation>
    </message>
    <message>
        <source>the form does not refer to a list</source>
        <translation>das Formular verweist auf keine Liste</translation>
    </message>
    <message>
        <source>item %1: %2 cannot be written in code page %3</source>
        <translation>Eintrag %1: %2 lässt sich nicht in Codepage %3 schreiben</translation>
    </message>
</context>
<context>
    <name>recovery</name>
    <message>
        <source>has no unsaved work that can be read</source>
        <translation>enthält keine lesbare ungespeicherte Arbeit</translation>
    </message>
</context>
<context>
    <name>renaming</name>
    <message>
        <source>&quot;%1&quot; is already a control of another class</source>
        <translation>„%1“ ist schon ein Steuerelement einer anderen Klasse</translation>
    </message>
    <message>
        <source>There is already a control &quot;%1&quot;. Give both an index first to make them an array</source>
        <translation>Ein Steuerelement „%1“ gibt es schon. Geben Sie erst beiden einen Index, um ein Feld aus ihnen zu machen</translation>
    </message>
    <message>
        <source>There is already a control &quot;%1&quot;</source>
        <translation>Ein Steuerelement „%1“ gibt es schon</translation>
    </message>
    <message>
        <source>The form itself has the name &quot;%1&quot;</source>
        <translation>Das Formular selbst hat den Namen „%1“</translation>
    </message>
    <message>
        <source>A name begins with a letter, continues with letters, digits and underscores, and has at most 40 characters</source>
        <translation>Ein Name beginnt mit einem Buchstaben, besteht sonst aus Buchstaben, Ziffern und Unterstrichen und hat höchstens 40 Zeichen</translation>
    </message>
    <message>
        <source>An index must be from 0 to 32767</source>
        <translation>Ein Index muss zwischen 0 und 32767 liegen</translation>
    </message>
</context>
<context>
    <name>stacking</name>
    <message>
        <source>Bring to front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>In den Hintergrund</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>writable_text</name>
    <message>
        <source>&quot;%1&quot; (%2) cannot be written in code page %3</source>
        <translation>„%1“ (%2) lässt sich nicht in Codepage %3 schreiben</translation>
    </message>
</context>
</TS>
