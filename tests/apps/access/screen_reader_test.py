#!/usr/bin/python3
"""Reads lumenform as a screen reader does, over AT-SPI, and compares with texts written by hand.

    screen_reader_test.py LUMENFORM SOURCES

Needs an X server with a window manager and a D-Bus session of its own: scripts/on_screen.sh,
dbus-run-session. The Debian package of pyatspi works with the system's Python only.
"""
import os
import subprocess
import sys
import time
from pathlib import Path

import pyatspi

SECONDS = 60
WITHOUT_MEANING = {"filler", "frame", "viewport"}

ORDER = r"""
label 'Order a T-shirt\n• Pick a size on the right\n• Write below what to print: 3 lines of 24\n• Printing takes two days, three before holidays'
panel 'Size'
  radio button 'Small' 1 of 4
  radio button 'Medium' checked 2 of 4
  radio button 'Large' 3 of 4
  radio button 'Extra large' 4 of 4
label 'Your name'
text 'Your name' = 'Ada Lovelace'
label 'What to print'
text 'What to print' (up to 24 characters per line, up to 3 lines) = 'HAPPY BIRTHDAY, LEN'
check box 'It is a gift'
push button 'Order'
push button 'Cancel'
"""

DESCRIBED = r"""
text '' = 'first'
label 'Colour'
panel 'Colour'
  radio button 'Red' 1 of 3
  radio button '' 2 of 3
  radio button 'Blue' 3 of 3
panel 'Address'
  label 'Street and'
  text 'Street and' (up to 1 line) read-only = 'Long Lane'
label 'Pay by'
text 'Pay by' = 'cash'
"""

PAGE = r"""
label 'Caption:'
text 'Caption:' = '|b|Welcome|n| to |Q|lumenkit|Q|.|CR|* first|CR|* second'
label ' ^S=SelectNext, ^B=Bold, ^N=Normal, ^I=Italic on, ^O=italic Off, ^G=Green, ^L=Linespc'
push button 'Keys Help'
label ''
label '|'
label 'b|We'
label 'Bullet Prefix:'
text 'Bullet Prefix:' = '* '
label 'Bullet Indent:'
text 'Bullet Indent:' = '240'
check box 'Word Wrap' checked
label 'Welcome to "lumenkit".\n• first\n• second'
"""


def until(found, what):
    """Waits for a true result of `found`."""
    end = time.monotonic() + SECONDS
    while True:
        result = found()
        if result:
            return result
        assert time.monotonic() < end, f"{what} did not come"
        time.sleep(0.2)


def children(accessible):
    accessible.clearCache()
    return [accessible.getChildAtIndex(index) for index in range(accessible.childCount)]


def everything_in(accessible):
    yield accessible
    for child in children(accessible):
        yield from everything_in(child)


def has(accessible, state):
    return accessible.getState().contains(state)


def text_of(accessible):
    return accessible.queryText().getText(0, -1)


def spoken(accessible):
    """Returns what a screen reader says of one object."""
    role = accessible.getRoleName()
    said = f"{role} {accessible.name!r}"
    if accessible.description:
        said += f" ({accessible.description})"
    if has(accessible, pyatspi.STATE_CHECKED):
        said += " checked"
    if role == "radio button":
        said += f" {accessible.getIndexInParent() + 1} of {accessible.parent.childCount}"
    if role == "text":
        said += "" if has(accessible, pyatspi.STATE_EDITABLE) else " read-only"
        said += f" = {text_of(accessible)!r}"
    return said


def reading(accessible, indent=""):
    """Yields a line for each object with a meaning, in order. Invisible ones count too."""
    role = accessible.getRoleName()
    if role not in WITHOUT_MEANING:
        yield indent + spoken(accessible)
        indent += "  "
    if role == "text":
        return
    for child in children(accessible):
        yield from reading(child, indent)


class Program:
    """lumenform, as an assistive technology finds it."""

    def __init__(self, *command):
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = subprocess.Popen(command, env=environment)
        self.application = until(self._application, "the program")

    def _application(self):
        assert self.process.poll() is None, "the program has ended"
        desktop = pyatspi.Registry.getDesktop(0)
        for application in children(desktop):
            if application is not None and application.name == "lumenform":
                return application if application.childCount else None
        return None

    def window(self, title, role):
        def found():
            windows = [window for window in children(self.application)
                       if window.name == title and window.getRoleName() == role]
            return windows[0] if windows and has(windows[0], pyatspi.STATE_ACTIVE) else None
        return until(found, title)

    def end(self):
        self.process.terminate()
        self.process.wait(SECONDS)


def expect(got, expected):
    expected = expected.strip()
    got = "\n".join(got)
    assert got == expected, f"read:\n{got}\nexpected:\n{expected}"


def find(window, role, name):
    found = [each for each in everything_in(window)
             if each.getRoleName() == role and each.name == name]
    assert len(found) == 1, f"{len(found)} times {role} {name!r}"
    return found[0]


def form_in(window):
    """Returns the form in the program's window: the first child is the window's central widget."""
    return children(window)[0]


def do(accessible, action):
    actions = accessible.queryAction()
    names = [actions.getName(index) for index in range(actions.nActions)]
    assert action in names, names
    actions.doAction(names.index(action))


def runs_the_order(lumenform, sources):
    program = Program(lumenform, "run", sources / "samples/forms/order.frm")
    try:
        window = program.window("Order", "frame")
        expect(reading(form_in(window)), ORDER)
        # A list: exactly one option is checked.
        large = find(window, "radio button", "Large")
        assert not list(large.getRelationSet()), "the group would be said with each option"
        do(large, "Toggle")
        def checked():
            return [each.name for each in everything_in(window)
                    if each.getRoleName() == "radio button" and has(each, pyatspi.STATE_CHECKED)]
        until(lambda: checked() == ["Large"], "the choice of Large")
        # A memo: an assistive technology may write, and the limits hold.
        memo = find(window, "text", "What to print")
        assert memo.queryEditableText().setTextContents("one\ntwo\nthree\nfour")
        until(lambda: text_of(memo) == "one\ntwo\nthree", "the cut text")
        assert not any(each.getRoleName() == "text" and not has(each, pyatspi.STATE_SHOWING)
                       for each in everything_in(form_in(window))), "a hidden box exists"
    finally:
        program.end()


def runs_the_described(lumenform, sources):
    program = Program(lumenform, "run", sources / "tests/apps/access/described.frm")
    try:
        expect(reading(form_in(program.window("Described", "frame"))), DESCRIBED)
    finally:
        program.end()


def opens_the_page(lumenform, sources):
    program = Program(lumenform, "design", sources / "samples/forms/label.frm")
    try:
        until(lambda: [window for window in children(program.application)
                       if has(window, pyatspi.STATE_ACTIVE)], "the designer")
        for keys in ("Tab", "ctrl+Return"):
            subprocess.run(["xdotool", "key", keys], check=True)
        dialog = program.window("VLabel1: Caption", "dialog")
        lines = [line.strip() for line in reading(dialog)]
        begin = lines.index("label 'Caption:'")
        expect(lines[begin:], PAGE)
    finally:
        program.end()


def main():
    lumenform, sources = sys.argv[1], Path(sys.argv[2])
    for check in (runs_the_order, runs_the_described, opens_the_page):
        check(lumenform, sources)
        print(f"{check.__name__}: as expected")


main()
