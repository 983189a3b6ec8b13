#!/usr/bin/env python3
"""Checks the translations of lumenform, and that its windows show no text that cannot be translated.

    translations_test.py SOURCES
"""
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCES = Path(sys.argv.pop())
PROGRAM = SOURCES / "apps" / "lumenform"
TRANSLATIONS = sorted((PROGRAM / "language" / "translations").glob("*.ts"))
WINDOW_FOLDERS = ["design", "form_view", "run"]

# Texts that may read the same in another language: names, terms and signs.
MAY_BE_EQUAL = {
    "&Code", "&Name:", "&Palette", "&System", "0 - None", "1 - Left", "2 - Middle", "3 - Right", "Bitmap", "Code",
    "Esc", "F&ormat", "F2", "F4", "Inde&x:", "Name", "Palette", "Position", "UTF-8", "Unicode (UTF-8)", "lumenform",
    "lumenform %1", "(%1, %2 KB)", "%1[*] – lumenform", "%1 %", "&Zoom", "F10", "F12",
}

# ---- Texts in sources

# The calls whose texts a user sees.
SHOWN_BY = re.compile(
    r"\b(setText|setToolTip|setStatusTip|setWhatsThis|setTitle|setWindowTitle|setAccessibleName|"
    r"setAccessibleDescription|setPlaceholderText|setInformativeText|setDetailedText|setHeaderLabels|setLabelText|"
    r"showMessage|addAction|addMenu|addToolBar|addTab|addButton|addRow|addItem|addItems|insertItem|setItemText|"
    r"QLabel|QPushButton|QCheckBox|QRadioButton|QGroupBox|QDockWidget|QAction|QMessageBox|getOpenFileName|"
    r"getOpenFileNames|getSaveFileName|setNameFilter|setNameFilters|Restructure|Warn|Say|Told|Tell|RefuseName|"
    r"RefusePicture)\s*\(")
# Calls that translate, that read a property of a form, and that take the name of an icon.
TRANSLATED_BY = re.compile(r"\b(tr|translate|QT_TRANSLATE_NOOP|QT_TR_NOOP|String|StringOf|ThemeIcon)\s*\(")
LITERAL = re.compile(r'(?<![\w\'])(?:u8|u|U|L)?"((?:[^"\\\n]|\\.)*)"')
SENTENCE = re.compile(r"[A-Za-z]{2,} [a-z]{2,}")
WORD = re.compile(r"[A-Za-z]{2,}")

# Sentences that are none of the program's own texts.
OTHER_SENTENCES = [
    ("design/properties/property_choices.", r"\d+ - ", "the names of values"),
    ("design/properties/usual_properties.cpp", r"\d+ - ", "the names of values"),
    ("design/properties/color_text.cpp", r"[A-Z][a-z ]+$", "the names of values"),
    ("design/properties/font_text.cpp", r"Arial, ", "a value"),
    ("design/model/new_form.cpp", r"(Begin|Attribute|Option| +Startup)", "the text of a form file"),
    ("form_view/form_view.cpp", r" (controls; at most|can be shown)", "a fault of a form file"),
]


def without_comments(text):
    """Blanks comments and includes; the length stays."""
    keep = re.compile(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*|/\*.*?\*/|^\s*#include[^\n]*', re.S | re.M)
    return keep.sub(lambda found: found[0] if found[0].startswith('"') else re.sub(r"[^\n]", " ", found[0]), text)


def end_of_call(text, opening):
    """Returns the position after the bracket that closes the one at `opening`."""
    depth, at = 0, opening
    while at < len(text):
        literal = LITERAL.match(text, at)
        if literal:
            at = literal.end()
            continue
        depth += {"(": 1, ")": -1}.get(text[at], 0)
        at += 1
        if depth == 0:
            return at
    return at


def without_translated(text):
    """Blanks the calls that translate, with what is in them."""
    at = 0
    while found := TRANSLATED_BY.search(text, at):
        end = end_of_call(text, found.end() - 1)
        text = text[:found.start()] + re.sub(r"[^\n]", " ", text[found.start():end]) + text[end:]
        at = end
    return text


def bare_texts(name, source):
    """Returns the texts that a user may see without a translation, with their lines."""
    text = without_translated(without_comments(source))
    found = {}
    for call in SHOWN_BY.finditer(text):
        arguments = text[call.end():end_of_call(text, call.end() - 1)]
        arguments = re.split(r"\[[^\[\]]*\]\s*[({]", arguments)[0]  # without lambdas
        for literal in LITERAL.finditer(arguments):
            if WORD.search(re.sub(r"\\.|&\w+;", "", literal[1])):
                found[call.end() + literal.start()] = literal[1]
    for literal in LITERAL.finditer(text):
        if SENTENCE.search(literal[1]):
            found[literal.start()] = literal[1]
    others = [pattern for part, pattern, _ in OTHER_SENTENCES if part in name]
    return [(text.count("\n", 0, at) + 1, words) for at, words in sorted(found.items())
            if not any(re.match(pattern, words) for pattern in others)]


# ---- Texts in translations

def entries(path):
    """Yields the source and each form of its translation."""
    for message in ElementTree.parse(path).getroot().iter("message"):
        forms = message.findall("translation/numerusform") or [message.find("translation")]
        for form in forms:
            yield message.find("source").text, form.text or ""


def place_holders(text):
    return sorted(re.findall(r"%L?\d|%n|\[\*\]|\(\*\.[^)]*\)", text))


def has_access_key(text):
    return re.search(r"&(?=[^\W_])", text.replace("&&", "")) is not None


def ending(text):
    """Returns the punctuation at the end."""
    return re.search(r"(\.\.\.|[.:…?!)]|\n)?$", text.rstrip(" "))[0]


def frame(text):
    """Returns the blanks around the text, and how often it breaks the line and the column."""
    return len(text) - len(text.lstrip()), len(text) - len(text.rstrip()), text.count("\n"), text.count("\t")


def faults(source, translation):
    """Returns what a translation has lost."""
    found = []
    if not translation.strip():
        found.append("no translation")
    if place_holders(source) != place_holders(translation):
        found.append("other place holders")
    if has_access_key(source) != has_access_key(translation):
        found.append("an access key in one of them")
    if ending(source) != ending(translation):
        found.append("another ending")
    if frame(source) != frame(translation):
        found.append("other blanks or line breaks")
    if source == translation and WORD.search(re.sub(r"%\w", "", source)) and source not in MAY_BE_EQUAL:
        found.append("the same text")
    return found


class Translations(unittest.TestCase):
    def test_there_are_some(self):
        self.assertIn("lumenform_de.ts", [path.name for path in TRANSLATIONS])

    def test_are_up_to_date_and_finished(self):
        run = subprocess.run([SOURCES / "scripts" / "translations.sh", "--check"], capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)

    def test_keep_what_the_program_needs(self):
        for path in TRANSLATIONS:
            for source, translation in entries(path):
                with self.subTest(path=path.name, source=source, translation=translation):
                    self.assertEqual(faults(source, translation), [])

    def test_lost_parts_are_found(self):
        for source, translation, fault in [
                ("Move %1 into %2", "%1 verschieben", "other place holders"),
                ("%n hits", "Treffer", "other place holders"),
                ("Forms (*.frm)", "Formulare (*.txt)", "other place holders"),
                ("&Open", "Öffnen", "an access key in one of them"),
                ("A & B", "A &B", "an access key in one of them"),
                ("&Open…", "Ö&ffnen", "another ending"),
                ("Done.", "Fertig", "another ending"),
                ("  %1 pixels", "%1 Pixel", "other blanks or line breaks"),
                ("Two\nlines", "Zwei Zeilen", "other blanks or line breaks"),
                ("Reset\tDel", "Zurück Entf", "other blanks or line breaks"),
                ("Reload", "Reload", "the same text"),
                ("Reload", "", "no translation")]:
            with self.subTest(source=source):
                self.assertIn(fault, faults(source, translation))
        self.assertEqual(faults("&Save as… %1", "Speichern &unter… %1"), [])


class Sources(unittest.TestCase):
    def test_show_only_texts_that_can_be_translated(self):
        files = [path for folder in WINDOW_FOLDERS for suffix in ("*.cpp", "*.h")
                 for path in sorted((PROGRAM / folder).rglob(suffix))]
        self.assertGreater(len(files), 100)
        for path in files:
            with self.subTest(file=path.relative_to(SOURCES)):
                self.assertEqual(bare_texts(str(path), path.read_text()), [])

    def test_bare_texts_are_found(self):
        for source in ['label->setText("Saved");',
                       'label->setText(QStringLiteral("Saved %1").arg(tr("it")));',
                       'auto* box = new QCheckBox("Sorted", this);',
                       'menu.addAction(icon, u"Cut"_qs, this, [] {});',
                       'field.setToolTip(isOn ? tr("On") : "Off");',
                       'throw Error(u"A menu needs a name");',
                       'return "item " + std::to_string(index) + " cannot be written";']:
            with self.subTest(source=source):
                self.assertNotEqual(bare_texts("any.cpp", source), [])
        for source in ['label->setText(tr("Saved (%1)").arg(name));',
                       'label->setText(QStringLiteral(" \\u00D7 "));',
                       'menu.addAction(tr("&Cut"), this, [] { raise(u"Click"); });',
                       'box.setText(QCoreApplication::translate("menus", "Edit the menus"));',
                       '// says "nothing is here"\nvoid F();',
                       'reader.Has(u"Index");']:
            with self.subTest(source=source):
                self.assertEqual(bare_texts("any.cpp", source), [])


if __name__ == "__main__":
    unittest.main()
