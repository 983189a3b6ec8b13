"""Tries the recipes of docs/check.md for reviews and commits, and validates the SARIF files.

    review_test.py LUMENKIT SOURCE_FOLDER

The recipes run as they are written in the document, in git repositories in a folder for temporary
files, without a network.
"""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import yaml
from jsonschema import Draft202012Validator

PROGRAM, SOURCE = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
MANUAL = (SOURCE / "docs/check.md").read_text("utf-8")
SCHEMA = json.loads((Path(__file__).parent / "sarif_as_written.json").read_text("utf-8"))

GOOD = 'VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Caption = "|b:1|Hello"\n End\nEnd\n'
BAD = GOOD.replace("|b:1|", "|Blod:1|")


def yaml_blocks():
    return [yaml.safe_load(block) for block in re.findall(r"^```yaml\n(.*?)^```$", MANUAL, re.M | re.S)]


def workflow():
    return next(block for block in yaml_blocks() if "jobs" in block)


def hook_configuration():
    return next(block for block in yaml_blocks() if "repos" in block)


class Folder(unittest.TestCase):
    """A folder of its own, and an environment in which only the folder counts."""

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("GIT_", "PRE_COMMIT"))}
        self.environment |= {
            "HOME": str(self.folder), "PRE_COMMIT_HOME": str(self.folder / "pre-commit"),
            "PATH": f"{PROGRAM.parent}:{os.environ['PATH']}", "GIT_CONFIG_NOSYSTEM": "1",
            "GIT_CONFIG_GLOBAL": str(self.folder / "no gitconfig"),
            "GIT_AUTHOR_NAME": "a", "GIT_AUTHOR_EMAIL": "a@example.com",
            "GIT_COMMITTER_NAME": "a", "GIT_COMMITTER_EMAIL": "a@example.com"}

    def run_in(self, place, *command):
        return subprocess.run(command, cwd=place, env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=300, check=False)

    def repository(self, name, files):
        place = self.folder / name
        place.mkdir()
        for path, text in files.items():
            (place / path).parent.mkdir(parents=True, exist_ok=True)
            (place / path).write_text(text)
        self.assertEqual(self.run_in(place, "git", "init", "-q").returncode, 0)
        return place

    def commit(self, place):
        self.run_in(place, "git", "add", "--all")
        return self.run_in(place, "git", "commit", "-q", "-m", "change")


class Recipe(Folder):
    @staticmethod
    def checks():
        """Returns the shell lines of the workflow that run lumenkit."""
        steps = workflow()["jobs"]["check"]["steps"]
        return [step["run"] for step in steps if "lumenkit check" in step.get("run", "")]

    def run_recipe(self, form):
        place = self.repository("project", {"forms/order.frm": form, "forms/plain.frm": GOOD})
        # GitHub runs each step in a shell that ends at the first failure.
        return place, [self.run_in(place, "bash", "-e", "-c", line) for line in self.checks()]

    def test_finds_mistakes(self):
        place, (annotated, written) = self.run_recipe(BAD)
        self.assertEqual(annotated.returncode, 1)
        self.assertEqual(annotated.stdout,
                         "::warning file=forms/order.frm,line=4,col=14,title=unknown-command::L.Caption: "
                         'unknown command "Blod"; did you mean "bold"?\n')
        self.assertEqual((written.returncode, written.stdout), (0, ""))
        log = json.loads((place / self.sarif_file()).read_text())
        self.assertEqual(list(Draft202012Validator(SCHEMA).iter_errors(log)), [])
        result, = log["runs"][0]["results"]
        location = result["locations"][0]["physicalLocation"]
        self.assertEqual((result["ruleId"], location["artifactLocation"]["uri"], location["region"]),
                         ("unknown-command", "forms/order.frm", {"startLine": 4, "startColumn": 14}))

    def test_passes_without_mistakes(self):
        place, steps = self.run_recipe(GOOD)
        self.assertEqual([(step.returncode, step.stdout) for step in steps], [(0, ""), (0, "")])
        self.assertEqual(json.loads((place / self.sarif_file()).read_text())["runs"][0]["results"], [])

    def test_fails_if_a_form_cannot_be_read(self):
        _, steps = self.run_recipe(GOOD.removesuffix("End\n"))
        self.assertEqual([step.returncode for step in steps], [2, 1])

    @staticmethod
    def sarif_file():
        upload = next(step for step in workflow()["jobs"]["check"]["steps"]
                      if "upload-sarif" in step.get("uses", ""))
        return upload["with"]["sarif_file"]


class Hook(Folder):
    def setUp(self):
        super().setUp()
        tool = self.repository("tool", {
            ".pre-commit-hooks.yaml": (SOURCE / ".pre-commit-hooks.yaml").read_text()})
        self.assertEqual(self.commit(tool).returncode, 0)
        configuration = hook_configuration()
        configuration["repos"][0]["repo"] = str(tool)
        configuration["repos"][0]["rev"] = self.run_in(tool, "git", "rev-parse", "HEAD").stdout.strip()
        self.project = self.repository(
            "project", {".pre-commit-config.yaml": yaml.safe_dump(configuration), "order.frm": GOOD,
                        "notes.txt": "|Blod:1|no form"})
        installed = self.run_in(self.project, "pre-commit", "install")
        self.assertEqual(installed.returncode, 0, installed.stdout)

    def test_refuses_a_commit_with_a_mistake(self):
        first = self.commit(self.project)
        self.assertEqual(first.returncode, 0, first.stdout)
        self.assertRegex(first.stdout, r"lumenkit check\.+Passed")
        (self.project / "forms").mkdir()
        (self.project / "forms/LABEL.CTL").write_text(BAD)
        second = self.commit(self.project)
        self.assertEqual(second.returncode, 1, second.stdout)
        self.assertIn('forms/LABEL.CTL:4:14: warning: L.Caption: unknown command "Blod"', second.stdout)
        self.assertNotIn("order.frm", second.stdout)
        self.assertEqual(self.run_in(self.project, "git", "rev-list", "--count", "HEAD").stdout, "1\n")
        (self.project / "forms/LABEL.CTL").write_text(GOOD)
        third = self.commit(self.project)
        self.assertEqual(third.returncode, 0, third.stdout)

    def test_leaves_a_commit_without_forms_alone(self):
        self.run_in(self.project, "git", "add", "notes.txt")
        done = self.run_in(self.project, "git", "commit", "-q", "-m", "notes")
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertRegex(done.stdout, r"lumenkit check\.+\(no files to check\)Skipped")

    def test_passes_its_arguments_on(self):
        (self.project / "order.frm").write_text(GOOD.replace("|b:1|", "|u:1|"))  # only a note
        self.assertEqual(self.commit(self.project).returncode, 0)


class Sarif(Folder):
    def log_of(self, *arguments):
        done = self.run_in(self.folder, PROGRAM, "check", "--format", "sarif", *arguments)
        self.assertIn(done.returncode, (0, 1, 2))
        return json.loads(done.stdout)

    def form(self, text):
        file = self.folder / "of the manual.frm"
        file.write_text(f"VERSION 5.00\nBegin VB.Form F\n{text}\nEnd\n")
        return self.log_of(file.name)

    def caption(self, text):
        file = self.folder / "of the manual.txt"
        file.write_text(text)
        return self.log_of("--caption", file.name)

    def logs(self):
        """Returns logs with a result of each rule: those of the examples of the manual."""
        for kind, times, text in re.findall(r"^```(frm|caption)(?: repeated (\d+))?\n(.*?)\n```$",
                                            MANUAL, re.M | re.S):
            text *= int(times or 1)
            yield self.form(text) if kind == "frm" else self.caption(text)
        for folder in ("samples/forms", "tests/apps/check/forms", "tests/apps/check/broken"):
            yield self.log_of(SOURCE / folder)
        yield self.log_of("no such form.frm", "b\u00e4d: 100%.frm")

    def test_has_the_shape_that_is_written_down(self):
        validator = Draft202012Validator(SCHEMA)
        Draft202012Validator.check_schema(SCHEMA)
        logs = list(self.logs())
        if target := os.environ.get("LUMENKIT_KEEP_SARIF"):
            for number, log in enumerate(logs):
                (Path(target) / f"{number}.sarif").write_text(json.dumps(log))
        for log in logs:
            self.assertEqual([error.message for error in validator.iter_errors(log)], [])
        described = {rule["id"] for rule in logs[0]["runs"][0]["tool"]["driver"]["rules"]}
        found = {result["ruleId"] for log in logs for result in log["runs"][0]["results"]}
        self.assertEqual(found, described)
        levels = {note["level"] for log in logs for invocation in log["runs"][0]["invocations"]
                  for note in invocation["toolExecutionNotifications"]}
        self.assertEqual(levels, {"note", "error"})

    def test_shape_refuses_other_logs(self):
        validator = Draft202012Validator(SCHEMA)
        log = self.form(' Begin lumenkit.VLabel L\n  Caption = "|Blod:1|x"\n End')
        wrong = [
            lambda log: log.update(version="2.0.0"),
            lambda log: log["runs"][0].update(undocumented=1),
            lambda log: log["runs"][0]["results"][0].update(level="fatal"),
            lambda log: log["runs"][0]["results"][0].pop("message"),
            lambda log: log["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["region"]
            .update(startLine=0),
            lambda log: log["runs"][0]["results"][0]["locations"][0]["physicalLocation"]
            ["artifactLocation"].update(uri="of the manual.frm"),
            lambda log: log["runs"][0]["tool"]["driver"].pop("name"),
        ]
        for damage in wrong:
            damaged = json.loads(json.dumps(log))
            damage(damaged)
            self.assertNotEqual(list(validator.iter_errors(damaged)), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
