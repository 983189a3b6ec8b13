"""Validates the JSON of the command line against the schemas in docs/schemas.

    schemas_test.py LUMENKIT SOURCE_FOLDER

The documents are outputs for the sample captions and forms, the written sessions and the examples of
docs/drive.md, the corpus of the fuzzer and generated sessions. LUMENKIT_TEST_SEED repeats a run.
"""
import copy
import functools
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from jsonschema import Draft202012Validator

PROGRAM, SOURCE = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
SCHEMAS = {path.stem: json.loads(path.read_text("utf-8"))
           for path in sorted((SOURCE / "docs/schemas").glob("*.json"))}
SESSIONS = SOURCE / "tests/apps/drive/sessions"
FORMS = SOURCE / "samples/forms"


def run(arguments, text="", statuses=(0,), folder=None):
    done = subprocess.run([PROGRAM, *map(str, arguments)], input=text.encode(), cwd=folder,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120, check=False)
    assert done.returncode in statuses, (arguments, done.returncode, done.stderr)
    return done.stdout.decode()


@functools.cache
def part(name, definition=None):
    """Returns a validator of a schema, or of one of its definitions."""
    schema = SCHEMAS[name]
    if definition is None:
        return Draft202012Validator(schema)
    return Draft202012Validator({"$defs": schema["$defs"], "$ref": f"#/$defs/{definition}"})


def one_line(output):
    assert output.endswith("\n") and output.count("\n") == 1, output[:200]
    return json.loads(output)


def fault(validator, document):
    return next((f"{list(error.absolute_path)}: {error.message[:300]}"
                 for error in validator.iter_errors(document)), None)


def objects(document):
    """Returns the objects in a document."""
    inner = list(document.values()) if isinstance(document, dict) else document
    found = [document] if isinstance(document, dict) else []
    return found + [one for value in inner if isinstance(value, (dict, list))
                    for one in objects(value)]


def damaged(document):
    """Returns copies of a document, each with one member more, one less or of another type."""
    for at in range(len(objects(document))):
        extra = copy.deepcopy(document)
        objects(extra)[at]["undocumented"] = 1
        yield "undocumented", extra
        for name, value in objects(document)[at].items():
            other = copy.deepcopy(document)
            objects(other)[at][name] = [[]] if not isinstance(value, list) else {"a": 1}
            yield f"another type of {name}", other
            less = copy.deepcopy(document)
            del objects(less)[at][name]
            yield f"without {name}", less


def compiled_documents():
    captions = sorted((SOURCE / "samples/captions").glob("*.txt"))
    captions += sorted((SOURCE / "fuzz/corpus/compile").iterdir())
    for caption in captions:
        # A file of the corpus need not be UTF-8, and its caption may be too long.
        output = run(["compile", "--json", caption], statuses=(0, 1, 2))
        if output:
            yield one_line(output)


def check_documents():
    for arguments in (["--json", FORMS], ["--json", SOURCE / "tests/apps/check/forms"],
                      ["--json", SOURCE / "tests/apps/check/broken", "no such file"],
                      ["--format", "json", "--caption", SOURCE / "tests/apps/check/captions"],
                      ["--json", "--caption", SOURCE / "samples/captions"]):
        yield one_line(run(["check", *arguments], statuses=(0, 1, 2)))
    yield one_line(run(["check", "--json", "--caption", "-"], "plain"))
    with tempfile.TemporaryDirectory() as mending:
        shutil.copytree(SOURCE / "tests/apps/check/forms", mending, dirs_exist_ok=True)
        mended = one_line(run(["check", "--json", "--fix=all", mending], statuses=(0, 1, 2)))
        assert mended["fixed"], "the forms have findings that can be mended"
        yield mended


def written_sessions():
    for file in sorted(SESSIONS.glob("*.session")):
        yield re.findall(r"^> (.*)$", file.read_text("utf-8"), re.M)
    for block in re.findall(r"^```session\n(.*?)^```$",
                            (SOURCE / "docs/drive.md").read_text("utf-8"), re.M | re.S):
        yield re.findall(r"^> (.*)$", block, re.M)
    for file in sorted((SOURCE / "fuzz/corpus/drive").iterdir()):
        text = file.read_bytes().decode("utf-8", "surrogateescape")
        yield [line for line in text.split("\n") if line.strip(" \t\r")]


class Generator:
    """Makes sessions: requests in the shape of the schema with arbitrary values."""
    MEMBERS = ["Caption", "Text", "Contents", "ListIndex", "Font", "ForeColor", "Enabled", "Value",
               "ItemCaption", "MaxLines", "MaxCharsPerLine", "WordWrap", "BulletPrefix", "Locked",
               "Width", "GetProperty", "SetIdealSize", "TestMessage", "Refresh", "hWnd", "AutoSize"]
    PARTS = ["Text1(0)", "Text1(1)", "Option1(0)", "Frame1", "txtCaption", "chkWordWrap", "cmdHelp",
             "HScroll1", "VScroll1", "txtBulletIndent"]
    TEXTS = ["", "a", "|b:1|bold|CR|* x", "1;One|2;Two|3;Three", "\u4e16\u754c \U0001f600", "7",
             "|size:99999|x", "line\r\nline", "x" * 200, "-1e400", "\b\r"]

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.pick = self.random.choice

    def number(self):
        return self.pick([0, 1, 2, 3, -1, 7, 300, 1500.5, 32767, 32768, 3.0, 2147483653, -99999])

    def font(self):
        whole = {"Name": "Arial", "Size": self.pick([8, 9.75, 0, 5000]), "Bold": True,
                 "Italic": False, "Underline": True}
        return {key: whole[key] for key in whole if self.random.random() < 0.6}

    def value(self):
        return self.pick([self.number, self.font, lambda: self.pick(self.TEXTS), lambda: None,
                          lambda: True, lambda: False])()

    def of(self, name):
        return {
            "id": lambda: self.pick(["a", "m", "o", "p", "q", "VMemo1"]),
            "class": lambda: self.pick(["VLabel", "vmemo", "lumenkit.VOptList", "VLabelCaption"]),
            "name": lambda: self.pick(self.MEMBERS), "dispid": lambda: self.pick([0, -501, 1745027073]),
            "on": lambda: self.pick(self.PARTS), "mode": lambda: self.pick(["run", "design"]),
            "bag": lambda: {self.pick(self.MEMBERS): self.value() for _ in range(3)},
            "select": lambda: self.random.sample(["a", "o", "m"], self.random.randint(0, 2)),
            "args": lambda: [self.value() for _ in range(self.random.randint(0, 2))],
            "event": lambda: self.pick(["MouseDown", "MouseMove", "MouseUp"]),
            "file": lambda: self.pick(["all_three.frm", "chinese.frm", "out.frm", "no.frm"]),
            "codePage": lambda: self.pick(["gbk", 1252]), "Font": self.font,
            "text": lambda: self.pick(self.TEXTS), "tag": lambda: self.pick(self.TEXTS),
            "start": lambda: self.pick([0, 1, 9]), "length": lambda: self.pick([0, 1, 99]),
            "button": lambda: self.pick([0, 1, 2]), "shift": lambda: 0,
        }.get(name, self.number)()

    def request(self, kind):
        schema = SCHEMAS["drive-request"]["$defs"][kind]
        named = self.pick(["name", "name", "dispid"]) if "anyOf" in schema else None
        request = {"do": kind}
        for key in schema["properties"]:
            needed = key in schema["required"] or key == named
            rival = named is not None and key in ("name", "dispid") and key != named
            if key != "do" and not rival and (needed or self.random.random() < 0.3):
                plain = key in ("value", "index", "BackColor") and kind not in ("allow", "scroll")
                request[key] = self.value() if plain else self.of(key)
        if kind == "allow":
            request["value"] = self.pick([True, False])
        if kind == "ambient":
            request.pop("BackColor", None)
        if kind == "scroll":
            request["value"] = self.pick([0, 1, 600, 99999, -1])
        for key in ("width", "height", "x", "y"):
            if key in request:
                request[key] = self.pick([0, 15, 1500.5, 9000])
        if kind == "focus" and "on" in request:
            request["id"] = self.of("id")
        return request

    def session(self, length):
        kinds = [kind for kind in answer_kinds() if kind != "quit"]
        first = [{"do": "new", "class": "VLabel", "id": "a"}, {"do": "new", "class": "VMemo", "id": "m"},
                 {"do": "new", "class": "VOptList", "id": "o", "bag": {"Contents": "1;One|2;Two"}},
                 {"do": "new", "class": "VLabelCaption", "id": "p", "select": ["a"]}]
        return [json.dumps(request) for request in
                first + [self.request(self.pick(kinds)) for _ in range(length)]]


def answer_kinds():
    return [name.removeprefix("answer-") for name in SCHEMAS["drive-answer"]["$defs"]
            if name.startswith("answer-")]


def exchanges(requests):
    """Returns requests with their answers. The session runs beside copies of the sample forms."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(FORMS, folder, dirs_exist_ok=True)
        sent = "\n".join(requests).encode("utf-8", "surrogateescape")
        done = subprocess.run([PROGRAM, "drive"], input=sent, cwd=folder, stdout=subprocess.PIPE,
                              timeout=300, check=True)
    answers = [json.loads(line) for line in done.stdout.decode().splitlines()]
    assert 0 < len(answers) <= len(requests)
    return list(zip(requests, answers))


def parsed(request):
    try:
        found = json.loads(request)
    except ValueError:
        return None
    return found if isinstance(found, dict) else None


class Schemas(unittest.TestCase):
    def test_are_schemas(self):
        self.assertEqual(sorted(SCHEMAS), ["check", "compile", "drive-answer", "drive-request"])
        for name, schema in SCHEMAS.items():
            Draft202012Validator.check_schema(schema)
            self.assertEqual(schema["$id"], f"urn:lumenkit:{name}:1")

    def test_say_of_each_object_which_members_it_has(self):
        for name, schema in SCHEMAS.items():
            for one in objects(schema):
                if one.get("type") == "object":
                    self.assertIn("additionalProperties", one, name)

    def test_have_the_requests_of_the_help(self):
        asked = set(re.findall(r'\{"do":"(\w+)"', run(["drive", "--help"])))
        self.assertEqual(asked, set(answer_kinds()))
        references = {one["$ref"].rsplit("/", 1)[1] for one in SCHEMAS["drive-request"]["oneOf"]}
        self.assertEqual(asked, references)
        definitions = {one["$ref"].rsplit("/", 1)[1] for one in SCHEMAS["drive-answer"]["anyOf"]}
        self.assertEqual({"failure"} | {f"answer-{name}" for name in asked}, definitions)

    def test_have_the_properties_of_an_embedded_label(self):
        page = (SOURCE / "docs/reference/vlabel.md").read_text("utf-8")
        properties = set(re.findall(r"^\| `(\w+)` \| property \|", page, re.M))
        known = SCHEMAS["drive-answer"]["$defs"]["embeddedLabel"]["properties"]
        self.assertEqual(properties, set(known) - {"Left", "Top", "Width", "Height", "Visible"})


class Documents(unittest.TestCase):
    def refuses_damage(self, validator, document, optional=()):
        self.assertIsNone(fault(validator, document))
        for what, wrong in damaged(document):
            if what.removeprefix("without ") not in optional:
                self.assertIsNotNone(fault(validator, wrong), what)

    def test_of_compile(self):
        documents = list(compiled_documents())
        self.assertGreater(len(documents), 20)
        self.assertTrue(any(document["commands"] for document in documents))
        for document in documents:
            self.assertIsNone(fault(part("compile"), document))
        self.refuses_damage(part("compile"), next(one for one in documents if one["commands"]))

    def test_of_check(self):
        documents = list(check_documents())
        for document in documents:
            self.assertIsNone(fault(part("check"), document))
        for kind in ("finding", "error", "note"):
            seen = [one for document in documents for one in document.get(kind + "s", [])]
            schema = SCHEMAS["check"]["$defs"][kind]
            with self.subTest(kind):
                self.assertEqual({name for one in seen for name in one}, set(schema["properties"]))
                always = set.intersection(*({*one} for one in seen))
                self.assertEqual(always, set(schema["required"]))
                fullest = max(seen, key=len)
                optional = set(schema["properties"]) - set(schema["required"])
                self.refuses_damage(part("check", kind), fullest,
                                    optional if kind == "finding" else ())
        rules = set(re.findall(r"^#### ([a-z-]+)$", (SOURCE / "docs/check.md").read_text(), re.M))
        pattern = SCHEMAS["check"]["$defs"]["finding"]["properties"]["rule"]["pattern"]
        self.assertGreater(len(rules), 15)
        for rule in rules:
            self.assertRegex(rule, pattern)


class Drive(unittest.TestCase):
    def check(self, request, answer):
        asked = parsed(request)
        kind = "answer-" + asked["do"] if answer["ok"] else "failure"
        self.assertIsNone(fault(part("drive-answer", kind), answer), (request, answer))
        return asked

    def test_written_sessions(self):
        seen = set()
        for session in written_sessions():
            for request, answer in exchanges(session):
                asked = self.check(request, answer)
                self.assertIsNone(fault(part("drive-answer"), answer), (request, answer))
                self.check_request(asked, answer)
                if answer["ok"]:
                    seen.add(asked["do"])
                    seen |= {"op " + one["op"] for one in objects(answer) if "op" in one}
                seen |= {"log " + next(iter(entry)) for entry in answer["log"]}
        self.assertEqual(seen, {*answer_kinds(), "op cls", "op print", "op box", "log event",
                                "log changed", "log message", "log beep"})

    def check_request(self, asked, answer):
        """A request of a wrong shape, and no other, is refused by the schema of the requests."""
        text = answer.get("error", {}).get("text", "")
        if asked is None or not isinstance(asked.get("do"), str) or "nested" in text:
            return
        definitions = SCHEMAS["drive-request"]["$defs"]
        kind = definitions.get(asked["do"]) if asked["do"] in answer_kinds() else None
        if kind is None:
            self.assertIsNotNone(fault(part("drive-request"), asked), asked)
            return
        # drive ignores unknown members.
        asked = {key: value for key, value in asked.items() if key in kind["properties"]}
        found = fault(part("drive-request"), asked)
        shape = re.search(r'^the request needs "(?!select)|^"\w+" must be (a (str|num|whole)|an arr|tr)|'
                          r'must be "|^an array is no value|^the \w+ must be|'
                          r"^an object as value is a font", text)
        if answer["ok"] or "number" in answer["error"]:
            self.assertIsNone(found, (asked, answer))
        elif shape:
            self.assertIsNotNone(found, (asked, answer))

    def test_generated_sessions(self):
        seed = int(os.environ.get("LUMENKIT_TEST_SEED", random.randrange(1 << 32)))
        print(f"LUMENKIT_TEST_SEED={seed}")
        generator = Generator(seed)
        served = 0
        for _ in range(10):
            for request, answer in exchanges(generator.session(200)):
                asked = self.check(request, answer)
                self.assertIsNone(fault(part("drive-request"), asked), request)
                served += answer["ok"]
        self.assertGreater(served, 500)

    def test_refuses_damage(self):
        session = ['{"do":"new","class":"VLabel","id":"a","bag":{"Caption":"* x","BulletPrefix":"* "}}',
                   '{"do":"new","class":"VMemo","id":"m"}',
                   '{"do":"new","class":"VOptList","id":"o","bag":{"Contents":"1;One|2;Two"}}',
                   '{"do":"new","class":"VLabelCaption","id":"p","select":["a"]}',
                   '{"do":"draw","id":"a"}', '{"do":"state","id":"m"}', '{"do":"state","id":"o"}',
                   '{"do":"state","id":"p"}', '{"do":"get","id":"m","name":"Font"}',
                   '{"do":"call","id":"m","name":"TestMessage"}', '{"do":"version"}',
                   '{"do":"get","id":"m","name":"None"}', '{"do":"get","id":"none","name":"Text"}',
                   '{"do":"form","file":"chinese.frm"}', '{"do":"type","id":"m","text":"a"}']
        kinds = set()
        for request, answer in exchanges(session):
            kind = "answer-" + json.loads(request)["do"] if answer["ok"] else "failure"
            if kind == "answer-state":
                kinds |= {self.refuses_damaged_part(one) for name, one in answer["value"].items()
                          if name != "Changed"}
                answer["value"] = {}
            for what, wrong in damaged(answer):
                if what not in self.OPTIONAL and (kind, what) != ("answer-call", "without value"):
                    self.assertIsNotNone(fault(part("drive-answer", kind), wrong), (what, wrong))
        self.assertEqual(kinds, set(self.constituents()))

    OPTIONAL = ("without number", "without warnings")

    @staticmethod
    def constituents():
        return [name for name, schema in SCHEMAS["drive-answer"]["$defs"].items()
                if {"Left", "Top"} <= set(schema.get("properties", {}))]

    def refuses_damaged_part(self, constituent):
        kinds = [name for name in self.constituents()
                 if fault(part("drive-answer", name), constituent) is None]
        self.assertEqual(len(kinds), 1, constituent)
        for what, wrong in damaged(constituent):
            self.assertIsNotNone(fault(part("drive-answer", kinds[0]), wrong), (what, wrong))
        return kinds[0]

    def test_requests_with_unknown_keys_are_refused(self):
        generator = Generator(1)
        for kind in answer_kinds():
            request = generator.request(kind)
            self.assertIsNone(fault(part("drive-request"), request))
            for key in list(request):
                less = {other: value for other, value in request.items() if other != key}
                if key in SCHEMAS["drive-request"]["$defs"][kind]["required"]:
                    self.assertIsNotNone(fault(part("drive-request"), less), (kind, key))
            request["undocumented"] = 1
            self.assertIsNotNone(fault(part("drive-request"), request), kind)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
