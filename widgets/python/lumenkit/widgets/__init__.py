"""The controls of lumenkit as PyQt6 widgets."""
import os as _os

# The classes of Qt must be known before those that inherit them.
from PyQt6 import QtWidgets as _QtWidgets  # noqa: F401

from ._widgets import lumenkit as _lumenkit

_all = _lumenkit.widgets
CaptionDialog = _all.CaptionDialog
CaptionPainter = _all.CaptionPainter
CaptionRun = _all.CaptionRun
ControlWidget = _all.ControlWidget
KeyArguments = _all.KeyArguments
KeyPressArguments = _all.KeyPressArguments
MouseArguments = _all.MouseArguments
ValidateArguments = _all.ValidateArguments
VLabel = _all.VLabel
VMemo = _all.VMemo
VOptList = _all.VOptList
setMessageHandler = _all.setMessageHandler

# Files of Designer name the members of an enumeration without the enumeration.
for _class, _enumerations in (
    (ControlWidget, ("BorderStyle", "MousePointer")),
    (VLabel, ("BackStyle",)),
    (VMemo, ("ScrollBars",)),
    (VOptList, ("ItemAlignment",)),
):
    for _enumeration in _enumerations:
        for _member in getattr(_class, _enumeration):
            setattr(_class, _member.name, _member)

# Lets PyQt6.uic, where it is installed, read files with these classes.
try:
    from PyQt6 import uic as _uic
except ImportError:
    pass
else:
    _uic.widgetPluginPath.append(_os.path.join(_os.path.dirname(__file__), "uic"))
