#!/usr/bin/env python3
"""Draws the pictures of a document about captions from the examples in the document.

    draw_captions.py LUMENFORM DOCUMENT

An example is a code block that assigns properties of "label", followed by the <img> of its picture,
or a table row with the caption as code in its first cell and the <img> in the second. LUMENFORM
renders a form with the label at twice the size. The script crops the picture to the drawing and
sets the width of the <img>.
"""
import re
import subprocess
import sys
import tempfile
from pathlib import Path

SCALE = 2
MARGIN = 8  # pixels around the drawing
WIDTH, HEIGHT = 9000, 3600  # twips; the form has room for every label

IMAGE = r'<img src="(?P<file>images/[\w-]+\.png)"(?: width="\d+")?'
BLOCK = re.compile(r"```vb\n(?P<code>(?:label\.\w+ = .*\n)+)```\n" + IMAGE)
ROW = re.compile(r"^\| `(?P<caption>.+?)` \| " + IMAGE, re.M)
ASSIGNMENT = re.compile(r"label\.(\w+) = (.*)")

FORM = """VERSION 5.00
Begin VB.Form Form1
   BackColor       =   &H00FFFFFF&
   ClientHeight    =   {height}
   ClientWidth     =   {width}
   ScaleHeight     =   {height}
   ScaleWidth      =   {width}
   Begin lumenkit.VLabel VLabel1
      Height          =   {label_height}
      Left            =   150
      Top             =   150
      Width           =   {label_width}
      BeginProperty Font {{0BE35203-8F91-11CE-9DE3-00AA004BB851}}
         Name            =   "Arial"
         Size            =   12
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      BackColor       =   &H00FFFFFF&
      ForeColor       =   0
{properties}
   End
End
Attribute VB_Name = "Form1"
"""
SIZES = {"Width", "Height"}
BOOLEANS = {"True": "-1", "False": "0"}


def examples(document):
    """Yields the file of each picture and the properties of its label, as saved in a form."""
    for match in BLOCK.finditer(document):
        yield match["file"], dict(ASSIGNMENT.findall(match["code"]))
    for match in ROW.finditer(document):
        yield match["file"], {"Caption": '"' + match["caption"].replace("\\|", "|") + '"'}


def form(properties):
    lines = [f"      {name:15} =   {BOOLEANS.get(value, value)}"
             for name, value in properties.items() if name not in SIZES]
    width = int(properties.get("Width", WIDTH - 300))
    height = int(properties.get("Height", HEIGHT - 300))
    return FORM.format(width=WIDTH, height=HEIGHT, label_width=width, label_height=height,
                       properties="\n".join(lines))


def draw(lumenform, properties, picture):
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder) / "caption.frm"
        source.write_text(form(properties), encoding="utf-8")
        subprocess.run([lumenform, "render", source, "-o", picture, "--scale", str(SCALE)], check=True)
    # No metadata, so that equal pictures are equal files.
    subprocess.run(["convert", picture, "-trim", "+repage", "-bordercolor", "white",
                    "-border", str(MARGIN), "-strip", "-define", "png:exclude-chunks=date,time",
                    picture], check=True)


def width_of(picture):
    size = subprocess.run(["identify", "-format", "%w", picture],
                          check=True, capture_output=True, text=True).stdout
    return int(size)


def main():
    lumenform, name = sys.argv[1:]
    path = Path(name)
    document = path.read_text("utf-8")
    drawn = {}
    for file, properties in examples(document):
        picture = path.parent / file
        picture.parent.mkdir(exist_ok=True)
        draw(lumenform, properties, picture)
        drawn[file] = width_of(picture) // SCALE
    wanted = set(re.findall(r"images/caption-[\w-]+\.png", document))
    if not drawn or wanted != set(drawn):
        sys.exit(f"draw_captions: no example found for {sorted(wanted - set(drawn))}")
    document = re.sub(IMAGE, lambda match: f'<img src="{match["file"]}" width="{drawn[match["file"]]}"',
                      document)
    path.write_text(document, encoding="utf-8")
    print(f"{len(drawn)} pictures of captions")


main()
