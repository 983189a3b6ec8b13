#!/usr/bin/env python3
"""Prints from the records of gcovr the share of lines and branches that tests reach in each folder.

    scripts/coverage_table.py RECORDS.json UNREACHED.txt FOLDER...

Prints one line per folder. Writes the lines that no test reaches, and the lines with a branch that
is never taken, into UNREACHED.txt.
"""
import json
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def branches_of(line):
    return [branch for branch in line["branches"] if not branch.get("throw")]


class Reach:
    """The number of lines and branches in some files, and how many of them are reached."""

    def __init__(self, files):
        lines = [line for file in files for line in file["lines"] if not line["gcovr/noncode"]]
        branches = [branch for line in lines for branch in branches_of(line)]
        self.lines = len(lines)
        self.reached = sum(line["count"] > 0 for line in lines)
        self.branches = len(branches)
        self.taken = sum(branch["count"] > 0 for branch in branches)

    def __str__(self):
        return (f"{self.lines:8}{share(self.reached, self.lines):>10}"
                f"{self.branches:10}{share(self.taken, self.branches):>10}")


def share(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else "-"


def unreached(file):
    text = (ROOT / file["file"]).read_text(encoding="utf-8").splitlines()
    for line in file["lines"]:
        number = line["line_number"]
        where = f"{file['file']}:{number}"
        branches = branches_of(line)
        never = sum(branch["count"] == 0 for branch in branches)
        if line["gcovr/noncode"]:
            continue
        if line["count"] == 0:
            yield f"{where}: never reached: {text[number - 1].strip()}"
        elif never > 0:
            yield f"{where}: {never} of {len(branches)} branches not taken: {text[number - 1].strip()}"


def main():
    records, listing, *folders = sys.argv[1:]
    files = json.loads(Path(records).read_text(encoding="utf-8"))["files"]
    inside = {folder: [file for file in files if file["file"].startswith(folder + "/")]
              for folder in folders}
    print(f"{'folder':20}{'lines':>8}{'reached':>10}{'branches':>10}{'taken':>10}")
    for folder, those in inside.items():
        print(f"{folder:20}{Reach(those)}")
    print(f"{'all':20}{Reach([file for those in inside.values() for file in those])}")
    Path(listing).write_text(
        "".join(line + "\n" for those in inside.values() for file in those
                for line in unreached(file)), encoding="utf-8")
    print(f"The lines and branches that are not: {listing}")


if __name__ == "__main__":
    main()
