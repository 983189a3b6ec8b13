#!/usr/bin/env python3
"""Shows a form of Qt Designer with the controls of lumenkit, in PyQt6:

    order.py FORM.ui [--print]

The plugin for Qt Designer makes the controls. Python reaches their properties by name and connects
to their signals. With --print, the program prints what the controls hold and ends.
"""
import sys

from PyQt6.QtCore import QFile, QIODevice
from PyQt6.QtDesigner import QFormBuilder
from PyQt6.QtWidgets import QApplication, QWidget


def load(name):
    file = QFile(name)
    if not file.open(QIODevice.OpenModeFlag.ReadOnly):
        sys.exit(f"{name}: {file.errorString()}")
    builder = QFormBuilder()
    builder.setPluginPath([f"{path}/designer" for path in QApplication.libraryPaths()])
    form = builder.load(file)
    if form is None:
        sys.exit(f"{name}: {builder.errorString()}")
    return form


def main():
    application = QApplication(sys.argv)
    form = load(sys.argv[1])
    heading, remarks, delivery = (
        form.findChild(QWidget, name) for name in ("heading", "remarks", "delivery"))
    delivery.click.connect(
        lambda: heading.setProperty("caption", f"|B:1|By {delivery.property('text')}"))
    form.show()
    if "--print" not in sys.argv:
        sys.exit(application.exec())
    delivery.setProperty("listIndex", 2)
    print(heading.property("caption"))
    print(*remarks.property("text").splitlines(), sep="\n")
    print(remarks.property("maxCharsPerLine"), delivery.property("itemForeColor").name())


main()
