#!/usr/bin/env python3
"""Checks what the sources of tests/install/consumer are compiled with:

    check_options.py compile_commands.json

Those that do not use lumenkit have the project's own options and no others; those that do have
C++20 and one more folder of headers, whose warnings are not theirs. --self-test proves that the
check can fail.
"""
import json
import shlex
import sys

OWN = ["-Wall", "-Wextra", "-Werror", "-Wpedantic", "-Wconversion"]
SHARED = {"bystander": ["-Dbystander_EXPORTS", "-fPIC"], "plug_in": ["-Dplug_in_EXPORTS", "-fPIC"]}
HEADERS = {"bystander": 0, "label_texts": 1, "plug_in": 1}


def options_of(command):
    """The options of a command line, without files, folders of headers and optimisation."""
    words = iter(shlex.split(command)[1:])
    options, headers = [], 0
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(words)
        elif word == "-isystem":
            next(words)
            headers += 1
        elif not word.startswith("-O") and word != "-MD":
            options.append(word)
    return options, headers


def faults(database):
    """What is wrong with the commands of a database, a line each."""
    seen = set()
    for entry in database:
        for target, headers in HEADERS.items():
            if f"CMakeFiles/{target}.dir/" not in entry["command"]:
                continue
            seen.add(target)
            expected = sorted([*OWN, *SHARED.get(target, [])]), headers
            options, found = options_of(entry["command"])
            # Not said where it is the compiler's default.
            standard = "-std=gnu++20" if headers else "-std=gnu++17"
            if (sorted(set(options) - {standard}), found) != expected:
                yield f"{target} is compiled with {' '.join(options)} and {found} folders of headers"
    for target in HEADERS.keys() - seen:
        yield f"{target} is not compiled"


def self_test():
    """A database without fault, and each fault in it."""
    def database(options="", standard="20"):
        own = " ".join(OWN)
        commands = {
            "bystander": f"-Dbystander_EXPORTS -O0 {own} -fPIC -std=gnu++17 {options}",
            "label_texts": f"-isystem include {own} -std=gnu++{standard}",
            "plug_in": f"-Dplug_in_EXPORTS -isystem include {own} -fPIC -std=gnu++{standard}",
        }
        return [{"command": f"c++ {words} -o CMakeFiles/{target}.dir/a.o -c a.cpp"}
                for target, words in commands.items()]

    assert not list(faults(database()))
    for broken in (database("-Wshadow"), database("-Itree"), database("-isystem include"),
                   database("-fvisibility=hidden"), database(standard="17"), database()[1:]):
        assert list(faults(broken)), broken


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    else:
        with open(sys.argv[1], encoding="utf-8") as file:
            found = list(faults(json.load(file)))
        print(*found, sep="\n", end="\n" if found else "", file=sys.stderr)
        sys.exit(1 if found else 0)
