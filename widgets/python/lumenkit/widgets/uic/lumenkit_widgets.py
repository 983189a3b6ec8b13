# Makes PyQt6.uic find the classes of lumenkit, which files of Designer name with their C++ scope.
import lumenkit.widgets._designer_files  # noqa: F401

pluginType = MODULE  # noqa: F821


def moduleInformation():
    return "lumenkit.widgets._widgets", ("lumenkit",)
