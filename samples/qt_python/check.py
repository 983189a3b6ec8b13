"""Uses the sample as a user does, without a screen."""
import sys

from PyQt6.QtCore import Qt
from PyQt6.QtGui import QColor, QImage, QPainter
from PyQt6.QtCore import QRectF
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QApplication, QRadioButton

from lumenkit.widgets import CaptionPainter, ControlWidget, VLabel, VMemo, setMessageHandler
from order import Order


def expect(actual, expected, what):
    if actual != expected:
        sys.exit(f"{what}: {actual!r}, expected {expected!r}")


application = QApplication(sys.argv)
order = Order()
order.show()

# What the file sets is set.
expect(type(order.title), VLabel, "class")
expect(order.title.borderStyle(), ControlWidget.BorderStyle.FixedSingle, "border")
expect(order.title.backColor(), QColor(255, 255, 225), "background")
expect(order.title.bulletIndent(), 225, "indent")
expect(order.note.scrollBars(), VMemo.ScrollBars.VerticalBar, "scroll bars")
expect(order.note.maxLines(), 4, "lines")
expect(order.size.topMargin(), 240.0, "margin")
expect((order.size.listIndex(), order.size.text()), (1, "M"), "selection")

# Signals and write-back.
texts = []
order.note.textChanged.connect(texts.append)
QTest.keyClicks(order.note.focusProxy(), "a1b")
expect(order.note.text(), "ab", "typed text")
expect(texts[-1], "ab", "text of the signal")
large = next(b for b in order.size.findChildren(QRadioButton) if b.text() == "Large")
large.click()
expect(order.windowTitle(), "Order: L", "title")
QTest.mouseClick(order.send, Qt.MouseButton.LeftButton)
expect(order.sent, ("L", "ab"), "sent")
expect(order.title.plainText(), "Thank you.", "caption")

# Messages.
messages = []
setMessageHandler(lambda text, title, is_critical: messages.append((text, is_critical)))
order.size.setLeftMargin(5.0)
expect(len(messages), 1, "messages")
expect(messages[0][1], True, "kind of the message")
setMessageHandler(None)

# Captions without a widget.
painter = CaptionPainter("|B:1|bold|B:0| plain")
expect([run.text for run in painter.runs()], ["bold", " plain"], "runs")
image = QImage(100, 30, QImage.Format.Format_RGB32)
image.fill(QColor("white"))
with QPainter(image) as on_image:
    painter.draw(on_image, QRectF(0, 0, 100, 30))
dark = sum(image.pixelColor(x, y).lightness() < 128 for x in range(100) for y in range(30))
expect(dark > 20, True, "drawn pixels")

if len(sys.argv) > 1:
    order.grab().save(sys.argv[1])
print("used from Python")
