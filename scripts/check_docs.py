#!/usr/bin/env python3
"""Checks the links, make targets and file names in the Markdown documents.

The target of a relative link or image must be a file of the tree, and its anchor a heading of that
file. In code spans and shell code, the targets of "make" and the files named by their path from the
top of the tree must exist. Under a heading "Name: folder" of docs/names.md, each name in a code span
must occur in the sources of that folder. --self-test proves that the check can fail.
"""
import re
import subprocess
import sys
import tempfile
from pathlib import Path

FENCE = re.compile(r"^(```+|~~~+).*?^\1[^\n]*$", re.M | re.S)
CODE_SPAN = re.compile(r"(`+)(?!`)(.+?)(?<!`)\1(?!`)", re.S)
COMMENT = re.compile(r"<!--.*?-->", re.S)
LINKS = [
    re.compile(r"\]\(\s*<?([^\s)>]+)"),                  # [text](target), ![text](target)
    re.compile(r"^ {0,3}\[[^\]]+\]:\s*<?([^\s>]+)", re.M),  # [name]: target
    re.compile(r"""(?:src|href)\s*=\s*["']([^"']+)"""),  # <img src="target">
]
OUTSIDE = re.compile(r"^[a-z][a-z0-9+.-]*:", re.I)
MAKE = re.compile(r"(?:^|[;&|]|\w=\S+)[ \t]*make((?:[ \t]+[\w=/.-]+)+)", re.M)
TARGET = re.compile(r"^([a-z][\w-]*):", re.M)
HEADING = re.compile(r"^#{1,6}\s+(.+?)\s*#*$", re.M)
NAME = re.compile(r"[A-Za-z_]\w*")
CLASS_HEADING = re.compile(r"^## [\w ]+: ([\w/]+)$", re.M)
NAMES = "docs/names.md"
PATH = re.compile(r"(?<![\w./~$-])[\w.-]+(?:/[\w.*-]+)+/?")


def code_and_prose(text):
    """Returns the shell code and code spans of a document, and its text without code."""
    code = [match[0].rsplit("\n", 1)[0] for match in FENCE.finditer(text)]
    code = [piece.split("\n", 1)[1] for piece in code if piece.startswith("```sh\n")]
    text = FENCE.sub("", text)
    code += [match[2] for match in CODE_SPAN.finditer(text)]
    return code, COMMENT.sub("", CODE_SPAN.sub("", text))


def anchors(text):
    """Returns the anchors that Git hosting sites derive from the headings of a document."""
    found = set()
    for heading in HEADING.findall(FENCE.sub("", text)):
        heading = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading)
        name = re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")
        numbered, count = name, 0
        while numbered in found:
            count += 1
            numbered = f"{name}-{count}"
        found.add(numbered)
    return found


def link_fault(root, document, link):
    """Returns the fault of a link, or None."""
    if OUTSIDE.match(link):
        return None
    path, _, anchor = link.partition("#")
    target = (root / document).parent / path if path else root / document
    if not target.exists():
        return "there is no such file"
    if root.resolve() not in [target.resolve(), *target.resolve().parents]:
        return "lies outside the tree"
    if anchor and target.suffix == ".md" and anchor not in anchors(target.read_text("utf-8")):
        return "there is no such heading"
    return None


def make_faults(targets, code):
    for words in MAKE.findall(code):
        for word in words.split():
            if "=" not in word and word not in targets:
                yield f"make {word}: there is no such target"


def path_faults(root, folders, code):
    """Checks the paths that begin with a folder of the tree; other paths are outside it."""
    for path in PATH.findall(code):
        path = path.rstrip(".")
        if path.split("/")[0] in folders and not any(root.glob(path.rstrip("/"))):
            yield f"{path}: there is no such file"


def name_faults(root, text):
    """Checks the names that a page lists for each folder against the sources of the folder."""
    sections = CLASS_HEADING.split(text)[1:]
    if not sections:
        yield "lists no names"
    for folder, section in zip(sections[::2], sections[1::2]):
        sources = [path for suffix in ("h", "cpp") for path in (root / folder).rglob(f"*.{suffix}")]
        words = {word for path in sources for word in NAME.findall(path.read_text("utf-8"))}
        for span in CODE_SPAN.findall(section):
            if NAME.fullmatch(span[1]) and span[1] not in words:
                yield f"{span[1]}: does not occur in {folder}"


def faults(root, documents, folders):
    targets = set(TARGET.findall((root / "Makefile").read_text("utf-8")))
    for document in documents:
        code, prose = code_and_prose((root / document).read_text("utf-8"))
        for link in (link for pattern in LINKS for link in pattern.findall(prose)):
            fault = link_fault(root, document, link)
            if fault:
                yield f"{document}: {link}: {fault}"
        for piece in code:
            for fault in (*make_faults(targets, piece), *path_faults(root, folders, piece)):
                yield f"{document}: {fault}"
    if NAMES in documents:
        for fault in name_faults(root, (root / NAMES).read_text("utf-8")):
            yield f"{NAMES}: {fault}"


def listed(root):
    listing = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard"],
        cwd=root, check=True, capture_output=True, text=True).stdout.splitlines()
    documents = [path for path in listing if path.endswith(".md") and (root / path).exists()]
    return documents, {path.split("/")[0] for path in listing if "/" in path}


def self_test():
    good = [
        "[a](docs/a.md) ![b](docs/b.png) [c](docs/a.md#two-words) [d](#here)\n# Here\n",
        "[a](https://example.org/missing) `[a](missing.md)`\n```\n[a](missing.md)\n```\n",
        "`make test` and `A=1 make test all` <!-- [a](missing.md) -->\n```sh\nmake all   # make of it\n```\n",
        "```\ndocs/missing.md: a sample of output\nmake missing\n```\n```sh\nmake all\nbuild/docs/x\n```\n",
        "`docs/a.md` `docs/*.md` `docs/` `build/x` `/docs/x` `other/docs/x`\n",
        "[a]\n\n[a]: docs/a.md\n<img src=\"docs/b.png\">\n",
        "[a](docs/a.md#two-words-1)\n",
    ]
    bad = [
        "[a](docs/missing.md)\n",
        "![a](docs/missing.png)\n",
        "[a](docs/a.md#missing)\n",
        "[a](#missing)\n",
        "[a](../outside.md)\n",
        "[a]\n\n[a]: docs/missing.md\n",
        "<img src=\"missing.png\">\n",
        "`make missing`\n",
        "```sh\ncd x && make missing\n```\n",
        "`make test missing`\n",
        "```sh\nmake test\nmake missing\n```\n",
        "`docs/missing.md`\n",
        "```sh\ncat docs/missing.md\n```\n",
        "`docs/*.missing`\n",
    ]
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder) / "tree"
        (root / "docs").mkdir(parents=True)
        (root.parent / "outside.md").write_text("")
        (root / "Makefile").write_text("all: test\ntest:\n")
        (root / "docs/a.md").write_text("# A\n## Two *words*\n## Two words\n```\n# Missing\n```\n")
        (root / "docs/b.png").write_text("")
        for expected, texts in ((0, good), (1, bad)):
            for text in texts:
                (root / "README.md").write_text(text)
                found = list(faults(root, ["README.md"], {"docs"}))
                assert len(found) == expected, (text, found)
        (root / "docs/a.h").write_text("void pGetA();\n")
        for expected, text in ((0, "## A: docs\n`pGetA`\n"), (1, "## A: docs\n`pGetB`\n"), (1, "# A\n")):
            (root / NAMES).write_text(text)
            found = list(faults(root, [NAMES], {"docs"}))
            assert len(found) == expected, (text, found)
    print("documents: the check tells good from bad")


def main():
    if sys.argv[1:] == ["--self-test"]:
        self_test()
        return 0
    root = Path(__file__).resolve().parent.parent
    documents, folders = listed(root)
    found = list(faults(root, documents, folders))
    for line in found:
        print(line)
    print(f"documents: {len(found)} faults in {len(documents)} files")
    return 1 if found or not documents else 0


sys.exit(main())
