#!/usr/bin/env python3
"""Chooses the translation units of builds that together read the given sources.

    scripts/lint_units.py OUTPUT BUILD... <sources

Reads paths of sources, relative to the current folder, one a line. For each BUILD, in order, writes
the units that read sources which no unit before read into the file OUTPUT/NAME, where NAME is the
last part of BUILD. Writes the sources that no unit reads into OUTPUT/none.
"""
import json
import re
import sys
from pathlib import Path

INCLUDED_SOURCE = re.compile(r'^#include "([^"]+\.cpp)"', re.M)


def sources_of(unit):
    """The sources that a translation unit consists of: several where they are compiled together."""
    if "/Unity/unity_" in unit:
        return INCLUDED_SOURCE.findall(Path(unit).read_text(encoding="utf-8"))
    return [unit]


def choose(build, wanted):
    """The units of `build` that read sources in `wanted`, which loses those."""
    chosen = []
    for entry in json.loads((Path(build) / "compile_commands.json").read_text(encoding="utf-8")):
        read = {str(Path(source).resolve()) for source in sources_of(entry["file"])} & wanted
        if read:
            wanted -= read
            chosen.append(entry["file"])
    return chosen


def main():
    output, builds = Path(sys.argv[1]), sys.argv[2:]
    wanted = {str(Path(line).resolve()) for line in sys.stdin.read().split("\n") if line}
    for build in builds:
        units = choose(build, wanted)
        (output / Path(build).name).write_text("".join(f"{unit}\n" for unit in units))
    left = sorted(str(Path(source).relative_to(Path.cwd())) for source in wanted)
    (output / "none").write_text("".join(f"{source}\n" for source in left))


main()
