#!/usr/bin/env python3
"""Checks the include rule: a folder includes only the folders that it may depend on.

A folder may include its own headers, the folders that the table lists for it and the standard
library. Other libraries and the Windows headers are allowed only in the folders listed for them. A
source file includes the header of the same name first, which shows that the header compiles alone.
A header contains #pragma once. --self-test proves that the check can fail.
"""
import re
import subprocess
import sys
import tempfile
from pathlib import Path

# Folder -> other project folders whose headers it may include. None: all folders.
ALLOWED = {
    "frame": [],
    "vlabel": ["frame"],
    "vmemo": ["frame"],
    "voptlist": ["frame"],
    "vlabelcaption": ["frame"],
    "forms": ["frame"],
    "runtime/shared": ["frame"],
    "runtime/memory": ["frame", "runtime/shared"],
    "runtime/win32": ["frame", "runtime/shared"],
    "runtime/qt": ["frame", "runtime/shared"],
    "runtime/ole/stored": ["frame"],
    # The layers of the component runtime, from the lowest.
    "runtime/ole/values": ["frame", "runtime/ole/stored", "runtime/win32"],
    "runtime/ole/module": ["frame", "runtime/ole/values", "runtime/win32"],
    "runtime/ole/objects": ["frame", "runtime/ole/values", "runtime/ole/module", "runtime/win32"],
    "runtime/ole/control": [
        "frame", "runtime/ole/stored", "runtime/ole/values", "runtime/ole/module", "runtime/ole/objects", "runtime/win32"],
    "runtime/ole/page": ["frame", "runtime/ole/values", "runtime/ole/module", "runtime/ole/objects", "runtime/win32"],
    "runtime/ole": [
        "frame", "runtime/ole/values", "runtime/ole/module", "runtime/ole/objects", "runtime/ole/control",
        "runtime/ole/page", "runtime/win32"],
    # The only folder that lists all classes.
    "project": ["frame", "vlabel", "vmemo", "voptlist", "vlabelcaption"],
    # The exports of the server, which pass the class table to the runtime.
    "server": ["project", "runtime/ole"],
    # The parts of the programs.
    "apps/command_line": ["frame", "forms"],
    "apps/lumenkit/check": ["frame", "vlabel", "vmemo", "voptlist", "forms", "runtime/memory"],
    "apps/lumenkit/drive": ["frame", "forms", "runtime/memory"],
    "apps/lumenkit": ["frame", "vlabel", "forms", "project", "apps/command_line",
                      "apps/lumenkit/check", "apps/lumenkit/drive"],
    "apps/lumenform/form_view": ["frame", "forms", "runtime/qt"],
    "apps/lumenform/run": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view"],
    "apps/lumenform/design/model": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view"],
    "apps/lumenform/design/canvas": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                     "apps/lumenform/design/model"],
    "apps/lumenform/design/properties": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                         "apps/lumenform/design/model"],
    "apps/lumenform/design/window": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                     "apps/lumenform/run", "apps/lumenform/design/model",
                                     "apps/lumenform/design/canvas",
                                     "apps/lumenform/design/properties"],
    "apps/lumenform": ["frame", "forms", "project", "runtime/qt", "apps/command_line",
                       "apps/lumenform/form_view", "apps/lumenform/run",
                       "apps/lumenform/design/model", "apps/lumenform/design/properties",
                       "apps/lumenform/design/window"],
    # Tests and samples, which combine the libraries.
    "tests": None,
    "bench": None,
    "fuzz": None,
    "samples": None,
}
# Folders that may use the headers of a platform or of another library.
COM_FOLDERS = [folder for folder in ALLOWED if folder.startswith("runtime/ole") and folder != "runtime/ole/stored"]
OTHER_LIBRARIES = ["runtime/win32", "runtime/qt", *COM_FOLDERS, "server", "tests", "bench", "fuzz", "samples"]
OTHER_LIBRARIES += [folder for folder in ALLOWED if folder.startswith("apps/")]
# Files in other folders that call the system or use processor instructions, with their headers.
SYSTEM_HEADERS = {
    # The standard library cannot flush a file to the disk.
    "forms/flush.cpp": {"fcntl.h", "io.h", "unistd.h"},
    # Compilers do not gather comparisons in a bit mask by themselves.
    "vlabel/bar_scanner.cpp": {"emmintrin.h"},
    "vmemo/line_break_scanner.cpp": {"emmintrin.h"},
}
WINDOWS_HEADERS = re.compile(r"^(windows|windowsx|ole\w*|objbase|commctrl|wingdi|winuser|unknwn)\.h$", re.I)
WINDOWS_FOLDERS = ["runtime/win32", *COM_FOLDERS, "server", "tests", "bench", "samples"]

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)
SOURCE_SUFFIXES = {".h", ".cpp", ".inc", ".rc"}


def folder_of(path):
    """Returns the deepest folder of the table that contains `path`, or None."""
    fitting = [folder for folder in ALLOWED if path.startswith(folder + "/")]
    return max(fitting, key=len, default=None)


def standard_header(name):
    return "/" not in name and "." not in name


def fault(path, quoted, name):
    """Returns the fault of an include, or None."""
    home = folder_of(path)
    if home is None:
        return "the folder is not in the table of scripts/check_includes.py"
    if quoted:
        target = folder_of(name)
        if target is None:
            return "is no path from the top of the tree"
        reachable = ALLOWED[home]
        if target == home or reachable is None or target in reachable:
            return None
        return f"{home} may not include {target}"
    if standard_header(name) or name in SYSTEM_HEADERS.get(path, ()):
        return None
    if WINDOWS_HEADERS.match(name) and home not in WINDOWS_FOLDERS:
        return f"{home} may not include Windows headers"
    if home not in OTHER_LIBRARIES:
        return f"{home} may include the standard library only"
    return None


def shape_fault(root, path, text):
    """Returns the fault of a file as a whole, or None."""
    if path.endswith(".h"):
        return None if "#pragma once" in text else "does not guard itself"
    header = path.removesuffix(".cpp") + ".h"
    if not path.endswith(".cpp") or not (root / header).exists():
        return None
    first = INCLUDE.search(text)
    return None if first and first[2] == header else f"does not include {header} first"


def faults(root, paths):
    for path in paths:
        text = (root / path).read_text(encoding="utf-8")
        for quote, name in INCLUDE.findall(text):
            wrong = fault(path, quote == '"', name)
            if wrong:
                yield f"{path}: {name}: {wrong}"
        wrong = shape_fault(root, path, text)
        if wrong:
            yield f"{path}: {wrong}"


def sources(root):
    listing = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard"],
        cwd=root, check=True, capture_output=True, text=True).stdout
    return [p for p in listing.splitlines() if Path(p).suffix in SOURCE_SUFFIXES and (root / p).exists()]


def self_test():
    good = {
        "frame/text.h": "#pragma once\n#include <string>\n",
        "frame/text.cpp": '#include "frame/text.h"\n\n#include <string>\n',
        "vlabel/a.cpp": '#include "frame/text.h"\n#include "vlabel/x.h"\n',
        "runtime/ole/a.cpp": '#include <windows.h>\n#include "runtime/win32/a.h"\n',
        "apps/lumenkit/main.cpp": '#include <CLI/CLI.hpp>\n#include "apps/lumenkit/check/a.h"\n',
        "forms/flush.cpp": "#include <unistd.h>\n",
        "frame/d.h": "#pragma once\n",
    }
    bad = {
        "frame/a.h": '#pragma once\n#include "vlabel/a.h"\n',
        "frame/b.h": "#pragma once\n#include <windows.h>\n",
        "vlabel/b.h": '#pragma once\n#include "vmemo/a.h"\n',
        "vlabelcaption/a.h": '#pragma once\n # include "vlabel/a.h"\n',
        "vlabel/c.h": "#pragma once\n#include <nlohmann/json.hpp>\n",
        "runtime/memory/a.h": '#pragma once\n#include "vlabel/a.h"\n',
        "runtime/win32/a.h": '#pragma once\n#include "runtime/ole/a.h"\n',
        "runtime/qt/a.h": "#pragma once\n#include <windows.h>\n",
        "frame/c.h": '#pragma once\n#include "text.h"\n',
        "forms/a.cpp": "#include <unistd.h>\n",
        "apps/lumenkit/check/a.h": '#pragma once\n#include "apps/lumenkit/commands.h"\n',
        "apps/lumenform/design/canvas/a.cpp": '#include "apps/lumenform/design/properties/a.h"\n',
        "elsewhere/a.h": "#pragma once\n#include <string>\n",
        "frame/unguarded.h": "#include <string>\n",
        "frame/d.cpp": '#include <string>\n#include "frame/d.h"\n',
    }
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for path, text in {**good, **bad}.items():
            (root / path).parent.mkdir(parents=True, exist_ok=True)
            (root / path).write_text(text, encoding="utf-8")
        for path in good:
            assert not list(faults(root, [path])), path
        for path in bad:
            assert list(faults(root, [path])), path
    print("include rule: the check tells good from bad")


def main():
    if sys.argv[1:] == ["--self-test"]:
        self_test()
        return 0
    root = Path(__file__).resolve().parent.parent
    paths = sources(root)
    found = list(faults(root, paths))
    for line in found:
        print(line)
    print(f"include rule: {len(found)} faults in {len(paths)} files")
    return 1 if found or not paths else 0


sys.exit(main())
