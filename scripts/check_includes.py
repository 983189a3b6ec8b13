#!/usr/bin/env python3
"""Checks the include rule: a folder includes only the folders that it may depend on.

    scripts/check_includes.py [--diagram | --write-diagram | --self-test]

A folder may include its own headers, the folders that the table lists for it and the standard
library. The table lists no folder that is not included. Other libraries and the Windows headers are
allowed only in the folders listed for them. A source file includes the header of the same name
first, which shows that the header compiles alone. A header contains #pragma once. No components
include each other in a circle; a header and the sources that implement it are one component.

The diagram in docs/architecture.md is drawn from the table. --diagram prints it, --write-diagram
puts it into the document. --self-test proves that the checks can fail.
"""
import itertools
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
    # The widgets for other programs. Their public headers include Qt alone.
    "widgets/include": [],
    "widgets/core": ["frame", "vlabel", "project", "runtime/qt"],
    "widgets": ["frame", "vlabel", "vmemo", "voptlist", "runtime/qt", "widgets/core"],
    "widgets/items": ["frame", "runtime/qt"],
    # The plugin for Qt Designer, which sees the controls as other programs do.
    "widgets/designer": ["runtime/qt", "widgets/items"],
    # The parts of the programs.
    "apps/command_line/spelling": ["frame"],
    "apps/difference": [],
    "apps/command_line": ["frame", "forms", "apps/command_line/spelling"],
    "apps/command_line/manual": ["apps/command_line"],
    "apps/lumenkit/windowless": ["frame", "forms", "runtime/memory"],
    "apps/lumenkit/check": ["frame", "vlabel", "vmemo", "voptlist", "forms", "runtime/memory",
                            "apps/command_line/spelling", "apps/lumenkit/windowless"],
    "apps/lumenkit/check/fix": ["frame", "vlabel", "forms", "runtime/memory", "apps/lumenkit/windowless",
                                "apps/command_line/spelling", "apps/difference",
                                "apps/lumenkit/check"],
    "apps/lumenkit/drive": ["frame", "forms", "runtime/memory", "apps/lumenkit/windowless"],
    "apps/lumenkit/svg": ["frame", "vlabel", "runtime/memory"],
    "apps/lumenkit": ["frame", "vlabel", "forms", "project", "apps/command_line",
                      "apps/command_line/spelling", "apps/command_line/manual",
                      "apps/difference", "apps/lumenkit/check", "apps/lumenkit/check/fix", "apps/lumenkit/drive",
                      "apps/lumenkit/svg"],
    "apps/lumenform/language": [],
    "apps/lumenform/form_view": ["frame", "forms", "runtime/qt"],
    "apps/lumenform/run": ["forms", "runtime/qt", "apps/lumenform/form_view"],
    "apps/lumenform/design/look": [],
    "apps/lumenform/design/icons": ["apps/lumenform/design/look"],
    "apps/lumenform/design/model": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view"],
    "apps/lumenform/design/canvas": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                     "apps/lumenform/design/look",
                                     "apps/lumenform/design/model"],
    "apps/lumenform/design/code": ["frame", "forms", "runtime/qt", "apps/lumenform/design/look",
                                   "apps/lumenform/design/icons",
                                   "apps/lumenform/design/model"],
    "apps/lumenform/design/outline": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                      "apps/lumenform/design/look", "apps/lumenform/design/icons",
                                      "apps/lumenform/design/model"],
    "apps/lumenform/design/properties": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                         "apps/lumenform/design/look", "apps/lumenform/design/icons",
                                         "widgets/items",
                                         "apps/lumenform/design/model"],
    "apps/lumenform/design/menus": ["frame", "forms", "runtime/qt", "apps/lumenform/design/look",
                                    "apps/lumenform/design/icons",
                                    "apps/lumenform/design/model",
                                    "apps/lumenform/design/properties"],
    "apps/lumenform/design/recovery": ["forms"],
    "apps/lumenform/design/window": ["frame", "forms", "runtime/qt", "apps/lumenform/form_view",
                                     "apps/difference", "apps/lumenform/run", "apps/lumenform/design/look",
                                     "apps/lumenform/design/icons", "apps/lumenform/design/model",
                                     "apps/lumenform/design/canvas",
                                     "apps/lumenform/design/code",
                                     "apps/lumenform/design/menus",
                                     "apps/lumenform/design/outline",
                                     "apps/lumenform/design/properties",
                                     "apps/lumenform/design/recovery"],
    "apps/lumenform": ["forms", "project", "runtime/qt", "apps/command_line",
                       "apps/command_line/manual",
                       "apps/lumenform/form_view", "apps/lumenform/language", "apps/lumenform/run",
                       "apps/lumenform/design/look",
                       "apps/lumenform/design/model", "apps/lumenform/design/properties",
                       "apps/lumenform/design/window"],
    # Tests, samples and tools, which combine the libraries.
    "tests": None,
    "bench": None,
    "fuzz": None,
    "samples": None,
    "scripts": None,
}
# The folders in the diagram, by group, with a note. Any other folder is drawn as the folder here that
# contains it, or else by itself, outside the groups. Folders that may include all others are not
# drawn.
DIAGRAM = {
    "programs": {
        "apps/lumenkit": "command line",
        "apps/lumenform": "forms on Qt",
        "apps/command_line": "common to both",
        "widgets/designer": "plugin for Qt Designer",
        "server": "lumenkit.ocx",
    },
    "control runtimes": {
        "runtime/memory": "no windows",
        "runtime/qt": "Qt Widgets",
        "runtime/ole": "COM",
        "runtime/win32": "native windows",
        "runtime/ole/stored": "saved settings",
        "runtime/shared": "common parts",
    },
    "controls": {"vlabel": "", "vmemo": "", "voptlist": "", "vlabelcaption": ""},
    "": {
        "widgets": "the controls in other programs",
        "project": "the class table",
        "forms": "form files",
        "frame": "text, numbers, errors, automation, host contract",
    },
}
DIAGRAM_DOCUMENT = "docs/architecture.md"

# Folders that may use the headers of a platform or of another library.
COM_FOLDERS = [folder for folder in ALLOWED if folder.startswith("runtime/ole") and folder != "runtime/ole/stored"]
OTHER_LIBRARIES = ["runtime/win32", "runtime/qt", "widgets/include", "widgets/core", "widgets/designer", "widgets", *COM_FOLDERS, "server", "tests", "bench", "fuzz", "samples", "scripts"]
OTHER_LIBRARIES += [folder for folder in ALLOWED if folder.startswith("apps/")]
# Files in other folders that call the system or use processor instructions, with their headers.
SYSTEM_HEADERS = {
    # The standard library cannot create a file exclusively, lock it or flush it to the disk.
    "forms/system_code_page.cpp": {"iconv.h", "windows.h"},
    "forms/disk.cpp": {"dirent.h", "fcntl.h", "io.h", "sys/file.h", "sys/stat.h", "unistd.h", "windows.h"},
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


def file_faults(root, path):
    text = (root / path).read_text(encoding="utf-8")
    for quote, name in INCLUDE.findall(text):
        wrong = fault(path, quote == '"', name)
        if wrong:
            yield f"{path}: {name}: {wrong}"
    wrong = shape_fault(root, path, text)
    if wrong:
        yield f"{path}: {wrong}"


def included(root, path):
    """Returns the headers of the project that a file includes."""
    found = INCLUDE.findall((root / path).read_text(encoding="utf-8"))
    return [name for quote, name in found if quote == '"' and folder_of(name)]


def table_faults(root, paths):
    """Yields circles of the table and permissions that no file uses: the diagram would show them."""
    for circle in circles({folder: set(targets or ()) for folder, targets in ALLOWED.items()}):
        yield f"the table has a circle: {', '.join(circle)}"
    used = {(folder_of(path), folder_of(name)) for path in paths for name in included(root, path)}
    for home, targets in ALLOWED.items():
        for target in targets or ():
            if (home, target) not in used:
                yield f"the table lets {home} include {target}, and no file does"


def component_of(path, headers):
    """Returns the component of a file: the header that it implements, without its suffix.

    A source without a header of its own belongs to the header whose name begins its name:
    voptlist_layout.cpp implements a part of voptlist.h.
    """
    stem = path.rsplit(".", 1)[0]
    part = stem
    while part + ".h" not in headers:
        part, cut, _ = part.rpartition("_")
        if not cut or part.endswith("/"):
            return stem
    return part


def circles(components):
    """Yields the groups of components that include each other, each group sorted."""
    reach = closure(components)
    met = set()
    for name in sorted(components):
        if name in reach[name] and name not in met:
            circle = sorted(other for other in reach[name] if name in reach[other])
            met.update(circle)
            yield circle


def closure(graph):
    """Returns for each node the nodes that its edges lead to, directly or through others."""
    def reached(node):
        found, waiting = set(), list(graph.get(node, ()))
        while waiting:
            target = waiting.pop()
            if target not in found:
                found.add(target)
                waiting.extend(graph.get(target, ()))
        return found
    return {node: reached(node) for node in graph}


def circle_faults(root, paths):
    headers = {path for path in paths if path.endswith(".h")}
    components = {component_of(path, headers): set() for path in paths}
    for path in paths:
        home = component_of(path, headers)
        targets = {component_of(name, headers) for name in included(root, path) if name in headers}
        components[home] |= targets - {home}
    for circle in circles(components):
        inside = {name: sorted(components[name] & set(circle)) for name in circle}
        yield "these include each other:" + "".join(
            f"\n  {name} -> {', '.join(targets)}" for name, targets in inside.items())


def drawn_as(folder):
    """Returns the folder of the diagram that stands for a folder of the table."""
    drawn = [name for group in DIAGRAM.values() for name in group if f"{folder}/".startswith(name + "/")]
    return max(drawn, key=len, default=folder)


def reduced(graph):
    """Returns the graph without the edges that a way through other nodes replaces."""
    reach = closure(graph)
    return {node: {target for target in targets
                   if not any(target in reach[other] for other in targets - {target})}
            for node, targets in graph.items()}


def gathered(graph, members):
    """Returns the edges of the reduced graph, with one edge of a group for those of all its members."""
    reach, edges = closure(graph), {(a, b) for a, targets in reduced(graph).items() for b in targets}
    for group, inside in members.items():
        for node in set(graph) - set(inside):
            to_node = {(member, node) for member in inside} & edges
            if len(to_node) > 1 and all(node in reach[member] for member in inside):
                edges = edges - to_node | {(group, node)}
            from_node = {(node, member) for member in inside}
            if len(from_node) > 1 and from_node <= edges:
                edges = edges - from_node | {(node, group)}
    return edges


def diagram():
    """Returns the diagram of the table in the language of Mermaid."""
    graph = {}
    for folder, targets in ALLOWED.items():
        if targets is not None:
            found = graph.setdefault(drawn_as(folder), set())
            found |= {drawn_as(target) for target in targets} - {drawn_as(folder)}
    groups = {group: [node for node in inside if node in graph] for group, inside in DIAGRAM.items()}
    groups[""] += [node for node in graph if not any(node in inside for inside in groups.values())]
    notes = {node: note for inside in DIAGRAM.values() for node, note in inside.items()}
    ids = {name: name.split()[-1].replace("/", "_") for name in (*graph, *groups) if name}

    def box(node):
        note = f" — {notes[node]}" if notes.get(node) else ""
        return f'{ids[node]}["{node}{note}"]' if ids[node] != node or note else node

    lines = ["flowchart TD"]
    for group, inside in groups.items():
        boxes = [f"    {box(node)}" for node in inside]
        lines += [f"    subgraph {ids[group]} [{group}]", *("    " + line for line in boxes),
                  "    end"] if group else boxes
    order = [*(node for inside in groups.values() for node in inside), *groups]
    del groups[""]
    edges = sorted(gathered(graph, groups), key=lambda edge: [order.index(end) for end in edge])
    for home, targets in itertools.groupby(edges, key=lambda edge: edge[0]):
        lines.append(f"    {ids[home]} --> {' & '.join(ids[target] for _, target in targets)}")
    return "\n".join(lines) + "\n"


def with_diagram(text):
    """Returns a document with the present diagram in place of the one that it has."""
    return re.sub(r"(?<=^```mermaid\n).*?(?=^```$)", lambda _: diagram(), text, count=1, flags=re.M | re.S)


def diagram_faults(root):
    text = (root / DIAGRAM_DOCUMENT).read_text(encoding="utf-8")
    if diagram() not in text:
        yield f"{DIAGRAM_DOCUMENT}: the diagram differs from the table; run scripts/check_includes.py --write-diagram"


def faults(root, paths):
    for path in paths:
        yield from file_faults(root, path)
    yield from table_faults(root, paths)
    yield from circle_faults(root, paths)
    yield from diagram_faults(root)


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
        "forms/disk.cpp": "#include <unistd.h>\n",
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
        write_files(root, {**good, **bad})
        for path in good:
            assert not list(file_faults(root, path)), path
        for path in bad:
            assert list(file_faults(root, path)), path
        used = set(table_faults(root, list(good)))
        assert "the table lets vlabel include frame, and no file does" not in used, used
        assert "the table lets voptlist include frame, and no file does" in used, used
    circle_self_test()
    diagram_self_test()
    print("include rule: the check tells good from bad")


def write_files(root, files):
    for path, text in files.items():
        (root / path).parent.mkdir(parents=True, exist_ok=True)
        (root / path).write_text(text, encoding="utf-8")


def circle_self_test():
    straight = {
        "frame/a.h": "",
        "frame/a.cpp": '#include "frame/a.h"\n#include "frame/b.h"\n',
        "frame/b.h": '#include "frame/c.h"\n',
        "frame/b.cpp": '#include "frame/b.h"\n#include "frame/c.h"\n',
        "frame/c.h": "",
        "frame/main.cpp": '#include "frame/a.h"\n#include "frame/c.h"\n',
    }
    closing = {
        "through headers": {"frame/c.h": '#include "frame/b.h"\n'},
        "through a header and a source": {"frame/c.cpp": '#include "frame/c.h"\n#include "frame/a.h"\n'},
        "through one of several sources": {"frame/c_more.cpp": '#include "frame/a.h"\n'},
    }
    for what, files in {"": {}, **closing}.items():
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            write_files(root, {**straight, **files})
            found = list(circle_faults(root, sorted({**straight, **files})))
            assert len(found) == (1 if files else 0), (what, found)


def diagram_self_test():
    graph = {"p": {"a", "b", "x"}, "a": {"x"}, "b": {"a", "x"}, "c": {"x"}, "x": set()}
    assert reduced(graph) == {"p": {"b"}, "a": {"x"}, "b": {"a"}, "c": {"x"}, "x": set()}
    assert gathered(graph, {"g": ["a", "b", "c"]}) == {("p", "b"), ("b", "a"), ("g", "x")}
    assert gathered({**graph, "p": {"a", "c"}}, {"g": ["a", "c"]}) >= {("p", "g"), ("g", "x")}
    document = "# A\n```mermaid\nflowchart TD\n```\nB\n```\n```\n"
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        write_files(root, {DIAGRAM_DOCUMENT: document})
        assert list(diagram_faults(root))
        write_files(root, {DIAGRAM_DOCUMENT: with_diagram(document)})
        assert not list(diagram_faults(root))


def main():
    root = Path(__file__).resolve().parent.parent
    if sys.argv[1:] == ["--self-test"]:
        self_test()
        return 0
    if sys.argv[1:] == ["--diagram"]:
        print(diagram(), end="")
        return 0
    if sys.argv[1:] == ["--write-diagram"]:
        document = root / DIAGRAM_DOCUMENT
        document.write_text(with_diagram(document.read_text(encoding="utf-8")), encoding="utf-8")
        return 0
    paths = sources(root)
    found = list(faults(root, paths))
    for line in found:
        print(line)
    print(f"include rule: {len(found)} faults in {len(paths)} files")
    return 1 if found or not paths else 0


sys.exit(main())
