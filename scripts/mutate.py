#!/usr/bin/env python3
"""Changes source files in one place at a time and checks whether their tests fail.

    scripts/mutate.py [--seconds N] [--jobs N] [--built] [FILE[:FIRST-LAST]...]

Without files, it changes the caption compiler, word wrapping and the restriction engine of the
memo. Each mutant is compiled in a temporary folder and linked with the tests that TESTS lists for
its folder, with the settings of build/dev; the source files do not change. Prints the mutants with
which all tests pass. The exit status is 1 if there are any. A mutant whose test runs for more than
N seconds of processor time (default 20) counts as noticed. A mutant that does not compile is
counted separately. --built: the tests in build/dev are up to date and are not built.
"""
import argparse
import concurrent.futures
import json
import re
import resource
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "dev"
# The small tests that a change in a folder should break, the fastest first.
TESTS = {
    "vlabel": ["vlabel_test", "caption_model_test", "caption_drawing_model_test"],
    "vmemo": ["vmemo_test", "memo_model_test"],
    "voptlist": ["voptlist_test", "option_list_model_test"],
    "runtime/ole/stored": ["stored_test"],
}
DEFAULT_FILES = [
    "vlabel/bar_scanner.cpp", "vlabel/caption_compiler.cpp", "vlabel/caption_reader.cpp",
    "vlabel/color_parameter.cpp", "vlabel/command_word.cpp", "vlabel/word_wrap.cpp",
    "vmemo/line_break_scanner.cpp", "vmemo/restriction_engine.cpp",
]
MEMORY_LIMIT = 6 << 30  # bytes; a test of the restriction engine maps more than 4 GiB

# A binary operator has blanks on both sides, unlike templates, pointers and references.
REPLACEMENTS = [
    (re.compile(re.escape(f" {old} ")), f" {new} ")
    for old, new in [
        ("==", "!="), ("!=", "=="), ("<", "<="), ("<=", "<"), (">", ">="), (">=", ">"),
        ("+", "-"), ("-", "+"), ("*", "/"), ("/", "*"), ("%", "*"), ("+=", "-="), ("-=", "+="),
        ("&&", "||"), ("||", "&&"), ("&", "|"), ("|", "&"),
    ]
] + [
    (re.compile(r"\+\+"), "--"),
    (re.compile(r"--"), "++"),
    (re.compile(r"\btrue\b"), "false"),
    (re.compile(r"\bfalse\b"), "true"),
]
NUMBER = re.compile(r"(?<![\w.'])(\d+)(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \(((?:[^()]|\((?:[^()]|\([^()]*\))*\))*)\)")
STATEMENT = re.compile(r"^\s+(?!return\b|break\b|using\b|const\b|static\b|auto\b|case\b|\})[\w:>\[\]().*-]+"
                       r"(?:\(.*\)|\s*[-+|&]?=\s.*|\+\+|--);$|^\s+(?:\+\+|--)[\w.]+;$")
HIDDEN = re.compile(r'//.*$|u?"(?:[^"\\]|\\.)*"|u?\'(?:[^\'\\]|\\.)*\'')


class Mutant:
    def __init__(self, file, number, old, new):
        self.file, self.number, self.old, self.new = file, number, old, new

    def __str__(self):
        return f"{self.file}:{self.number}: {self.old.strip()}  =>  {self.new.strip()}"


def changes(line):
    """Yields copies of the line with one change each, outside comments and literals."""
    visible = HIDDEN.sub(lambda match: "\0" * len(match[0]), line)
    if visible.lstrip().startswith("#"):
        return
    for pattern, new in REPLACEMENTS:
        for match in pattern.finditer(visible):
            yield line[:match.start()] + new + line[match.end():]
    for match in NUMBER.finditer(visible):
        for number in {int(match[1]) + 1, max(int(match[1]) - 1, 0)} - {int(match[1])}:
            yield line[:match.start()] + str(number) + line[match.end():]
    for match in CONDITION.finditer(visible):
        if ";" not in match[1]:
            start, end = match.span(1)
            yield f"{line[:start]}!({line[start:end]}){line[end:]}"
    if STATEMENT.match(visible):
        yield re.match(r"\s*", line)[0] + ";"


def mutants_of(argument):
    file, _, lines = argument.partition(":")
    first, _, last = lines.partition("-")
    text = (ROOT / file).read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(text, 1):
        if not lines or int(first) <= number <= int(last or first):
            for new in changes(line):
                yield Mutant(file, number, line, new)


def run(command, seconds, **options):
    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    return subprocess.run(command, preexec_fn=limit, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, check=False, **options).returncode


def compile_command(file, source, result):
    """Returns the compile command of `file`, without optimisation and compiler cache."""
    database = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    words = next(each["command"] for each in database if each["file"] == str(ROOT / file)).split()
    if words[0].endswith("ccache"):
        words = words[1:]
    words = [word for word in words if not word.startswith("-O") and word != "-Werror"]
    words[words.index("-o") + 1] = str(result)
    words[words.index("-c") + 1] = str(source)
    return words + ["-w", "-O0"]


def link_command(test, mutant, result):
    """Returns the link command of `test`, with the mutant before the libraries.

    The linker then does not take the original from its library.
    """
    commands = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", test], check=True,
                              capture_output=True, text=True).stdout.splitlines()
    linking = commands[-1].removeprefix(": && ").split(" && ")[0].split()
    if linking[0].endswith("ccache"):
        linking = linking[1:]
    linking[linking.index("-o") + 1] = str(result)
    library = next(i for i, word in enumerate(linking) if word.endswith(".a"))
    return linking[:library] + [str(mutant)] + linking[library:]


def tests_for(file):
    return next(tests for folder, tests in TESTS.items() if file.startswith(folder + "/"))


def verdict(mutant, seconds):
    with tempfile.TemporaryDirectory() as folder:
        source, code, program = (Path(folder) / name for name in ("mutant.cpp", "mutant.o", "test"))
        lines = (ROOT / mutant.file).read_text(encoding="utf-8").splitlines()
        lines[mutant.number - 1] = mutant.new
        source.write_text("\n".join(lines) + "\n", encoding="utf-8")
        if run(compile_command(mutant.file, source, code), 600, cwd=BUILD) != 0:
            return "does not compile"
        for test in tests_for(mutant.file):
            if run(link_command(test, code, program), 600, cwd=BUILD) != 0:
                return "does not compile"
            if run([program, "--gtest_brief=1", "--gtest_fail_fast"], seconds, cwd=folder) != 0:
                return "noticed"
    return "survived"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--seconds", type=int, default=20)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--built", action="store_true")
    parser.add_argument("files", nargs="*", default=DEFAULT_FILES)
    arguments = parser.parse_args()
    mutants = [mutant for file in arguments.files for mutant in mutants_of(file)]
    tests = {test for file in arguments.files for test in tests_for(file)}
    if not arguments.built:
        subprocess.run([ROOT / "scripts" / "build.sh", "dev", *sorted(tests)], check=True)
    for file in arguments.files:
        file = file.partition(":")[0]
        first = (ROOT / file).read_text(encoding="utf-8").splitlines()[0]
        if verdict(Mutant(file, 1, first, first), arguments.seconds) != "survived":
            sys.exit(f"{file}: its tests do not pass as it stands")
    counts = {"noticed": 0, "survived": 0, "does not compile": 0}
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        verdicts = pool.map(lambda mutant: verdict(mutant, arguments.seconds), mutants)
        for mutant, result in zip(mutants, verdicts):
            counts[result] += 1
            if result == "survived":
                print(mutant, flush=True)
    print(", ".join(f"{count} {what}" for what, count in counts.items()))
    return 1 if counts["survived"] else 0


if __name__ == "__main__":
    sys.exit(main())
