#!/usr/bin/env python3
"""script_members.py listing folder

Fails unless the scripts of each class use every member of its interface in every way that the
listing of the type library shows: reads, assigns, sets, calls.
"""
import pathlib
import re
import sys

OBJECTS = {"VLabel": "label", "VMemo": "memo", "VOptList": "options"}
LANGUAGES = ("vbs", "js")


def members(listing, class_name):
    """Returns the (kind, name) of each member of the dispatch interface of the class."""
    section = re.search(
        rf"^\d+ dispatch _{class_name}\n(.*?)(?=^  as interface)", listing, re.S | re.M
    )
    return re.findall(
        r"^  -?\d+ (propget|propputref|propput|method) (\w+)\(", section.group(1), re.M
    )


def usage(kind, object_name, member, language):
    """Returns the pattern of a line that uses the member in this way."""
    call = rf"\b{object_name}\.{member}\b"
    indices = r"(?:\([^()]*\))?"
    if kind == "propput":
        return rf"^{call}{indices} = "
    if kind == "propputref":
        return rf"^Set {call} = " if language == "vbs" else rf"^{call} = "
    if kind == "propget":
        return rf"^.+{call}"
    return rf"^(?:.*\W)?{call}"


def code_of(text, language):
    """Returns the lines of the script without comments and without statements that must fail."""
    comment = "'" if language == "vbs" else "//"
    lines = [line for line in text.splitlines() if not line.lstrip().startswith(comment)]
    if language == "vbs":
        text = "\n".join(lines)
        return re.sub(r"^On Error Resume Next$.*?^On Error GoTo 0$", "", text, flags=re.S | re.M)
    return "\n".join(line for line in lines if not line.startswith("raises("))


def missing(listing, folder):
    for class_name, object_name in OBJECTS.items():
        wanted = members(listing, class_name)
        assert wanted, f"the listing has no members of {class_name}"
        for language in LANGUAGES:
            script = folder / f"{class_name.lower()}.{language}"
            code = code_of(script.read_text(), language)
            for kind, member in wanted:
                if not re.search(usage(kind, object_name, member, language), code, re.M):
                    yield f"{script.name} has no {kind} of {member}"


def main():
    listing, folder = (pathlib.Path(argument) for argument in sys.argv[1:])
    found = list(missing(listing.read_text(), folder))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
