"""Lets PyQt6.uic read all properties of these classes from the files of Designer."""
from PyQt6.uic.properties import Properties

# PyQt6.uic takes these names for those of layouts and ignores them in widgets.
_NAMES_OF_LAYOUTS = ("leftMargin", "topMargin", "spacing")
_plain_set_properties = Properties.setProperties


def _set_properties(self, widget, element):
    _plain_set_properties(self, widget, element)
    if element.attrib.get("class") == "lumenkit::widgets::VOptList":
        for item in element.findall("property"):
            name = item.attrib["name"]
            if name in _NAMES_OF_LAYOUTS:
                getattr(widget, "set" + name[0].upper() + name[1:])(self.convert(item))


Properties.setProperties = _set_properties
