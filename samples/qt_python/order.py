#!/usr/bin/env python3
"""A small order form in Python: the form is a file of Qt Designer, the code is here."""
import sys
from pathlib import Path

from PyQt6 import uic
from PyQt6.QtWidgets import QApplication, QWidget

import lumenkit.widgets


class Order(QWidget):
    def __init__(self):
        super().__init__()
        uic.loadUi(Path(__file__).with_name("order.ui"), self)
        self.sent = None
        self.send.clicked.connect(self.send_order)
        self.size.click.connect(self.show_size)
        # Digits are not wanted: a slot may cancel or replace a key.
        self.note.keyPress.connect(self.refuse_digits)

    def refuse_digits(self, key):
        if chr(key.keyAscii()).isdigit():
            key.setKeyAscii(0)

    def show_size(self):
        self.setWindowTitle(f"Order: {self.size.text()}")

    def send_order(self):
        self.sent = (self.size.text(), self.note.text())
        self.title.setCaption("|B:1|Thank you.")


def main():
    application = QApplication(sys.argv)
    lumenkit.widgets.setMessageHandler(
        lambda text, title, is_critical: print(f"{title}: {text}", file=sys.stderr))
    order = Order()
    order.show()
    return application.exec()


if __name__ == "__main__":
    sys.exit(main())
