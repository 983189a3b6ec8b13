#!/usr/bin/env python3
"""Operates the controls with the keyboard and mouse of an X server, in real windows.

    person_test.py PROGRAM PICTURES

Runs PROGRAM (person_host) under Wine on the current display and writes pictures of the screen into
the folder PICTURES. The expected values are written by hand.
"""
import json
import os
import queue
import subprocess
import sys
import threading
import time
from pathlib import Path

CAPTION = "|B:1|Menu|B:0||CR|* soup|CR|* bread"
SECONDS = 60
TITLE_BAR = (200, 32)
PAGE_TITLE_BAR = (600, 212)


def screen(*command):
    subprocess.run(["xdotool", *map(str, command)], check=True)


class Program:
    """The running program, and the state that it last reported."""

    def __init__(self, path, pictures):
        self.pictures = pictures
        self.process = subprocess.Popen(["wine", path], stdout=subprocess.PIPE, text=True)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()
        assert self._line() == "ready"
        self.state = {}
        self.activate(TITLE_BAR)

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip("\r\n"))
        self.lines.put("the program has ended")

    def _line(self):
        return self.lines.get(timeout=SECONDS)

    def activate(self, title_bar):
        """Clicks the title bar: without a window manager, only a click reliably moves the focus."""
        screen("mousemove", *title_bar)
        screen("click", 1)

    def close_dialog(self, key, title_bar):
        screen("key", key)
        # A key that comes while the dialog closes would be lost.
        time.sleep(1)
        self.activate(title_bar)
        return self.look()

    def look(self):
        """Returns the state after the program has processed all earlier keys and clicks."""
        screen("key", "F12")
        line = self._line()
        assert line.startswith("{"), line
        self.state = json.loads(line)
        return self.state

    def keys(self, *names):
        screen("key", "--delay", 20, *names)
        return self.look()

    def type(self, text):
        screen("type", "--delay", 20, text)
        return self.look()

    def click(self, window, button=1, at=None, times=1, looks=True):
        left, top, right, bottom = window["place"]
        x, y = at or ((right - left) // 2, (bottom - top) // 2)
        screen("mousemove", left + x, top + y)
        screen("click", "--repeat", times, "--delay", 60, button)
        return self.look() if looks else None

    def find(self, text=None, kind=None, where="form"):
        found = [w for w in self.state[where]
                 if (text is None or w["text"] == text) and (kind is None or w["kind"] == kind)]
        assert found, f"no {kind} {text!r} in {self.state[where]}"
        return found[0]

    def focus(self, where="form"):
        found = [w for w in self.state[where] if w.get("focus")]
        return found[0] if found else None

    def picture(self, name):
        time.sleep(0.3)  # until the screen shows the drawing
        file = self.pictures / f"{name}.png"
        subprocess.run(["import", "-window", "root", file], check=True)
        subprocess.run(["convert", file, "-trim", "+repage", file], check=True)
        colours = subprocess.run(["identify", "-format", "%k", file], check=True,
                                 capture_output=True, text=True).stdout
        assert int(colours) > 4, f"{name} is empty"

    def end(self):
        self.process.kill()


def equal(found, expected):
    assert found == expected, f"\n  found    {found!r}\n  expected {expected!r}"


def memo_holds_its_limits(program):
    program.look()
    program.click(program.find(kind="Edit"))
    state = program.type("abcdefghij")
    equal(state["memo"], "abcdefghij")
    equal(state["events"], ["memo.Change"] * 10)
    state = program.type("k")
    equal(state["memo"], "abcdefghij")
    equal(state["events"], ["memo.Change"])
    equal(program.focus()["selection"], [10, 10])
    equal(program.type("  ")["memo"], "abcdefghij")
    program.keys("Return")
    program.type("second")
    program.keys("Return")
    full = "abcdefghij\r\nsecond\r\nthird line"
    equal(program.type("third line")["memo"], full)
    equal(program.keys("Return")["memo"], full)
    equal(program.type("x")["memo"], full)
    program.picture("memo_full")
    return full


def memo_copies_and_pastes(program, full):
    program.keys("ctrl+Home", "ctrl+shift+End", "ctrl+c")
    equal(program.focus()["selection"], [0, len(full)])
    equal(program.keys("ctrl+End", "ctrl+v")["memo"], full)
    equal(program.keys("ctrl+Home", "ctrl+shift+End", "Delete")["memo"], "")
    equal(program.keys("ctrl+v")["memo"], full)
    equal(program.keys("ctrl+End", "BackSpace")["memo"], full[:-1])
    equal(program.keys("ctrl+z")["memo"], full)
    equal(program.keys("ctrl+Home", "ctrl+shift+End", "Delete")["memo"], "")
    # A paste is cut at the last line; the part that fits stays.
    program.type("1")
    program.keys("Return")
    program.type("2")
    program.keys("Return")
    equal(program.type("3")["memo"], "1\r\n2\r\n3")
    program.keys("ctrl+Home", "ctrl+shift+End", "ctrl+c")
    equal(program.keys("ctrl+End", "ctrl+v")["memo"], "1\r\n2\r\n31")
    equal(program.focus()["selection"], [7, 7])
    # Enter in the middle of the last line drops the text after the caret.
    equal(program.keys("Return")["memo"], "1\r\n2\r\n3")
    equal(program.keys("ctrl+Home", "ctrl+shift+End", "ctrl+x")["memo"], "")


def memo_undoes_accepted_edits(program):
    program.keys("ctrl+Home", "ctrl+shift+End", "Delete")
    program.type("abcdefghij")
    program.keys("Return")
    equal(program.type("xy")["memo"], "abcdefghij\r\nxy")
    program.keys("Up", "End")
    equal(program.type("k")["memo"], "abcdefghij\r\nxy")  # refused
    equal(program.keys("ctrl+z")["memo"], "abcdefghij\r\n")
    state = program.keys("ctrl+z")
    equal((state["memo"], state["events"]), ("abcdefghij", ["memo.Change"]))
    equal(program.keys("ctrl+y")["memo"], "abcdefghij\r\n")
    # The menu of the box: Undo, then Redo.
    program.click(program.focus(), button=3, looks=False)
    program.picture("memo_menu")
    equal(program.keys("u")["memo"], "abcdefghij")
    program.click(program.focus(), button=3, looks=False)
    equal(program.keys("r")["memo"], "abcdefghij\r\n")
    equal(program.keys("alt+BackSpace")["memo"], "abcdefghij")
    equal(program.keys("ctrl+Home", "ctrl+shift+End", "Delete")["memo"], "")


def options_are_chosen(program):
    state = program.keys("Tab")
    equal(program.focus()["text"], "Small")
    equal((state["index"], state["events"]), (-1, ["memo.Change"] * 0))
    state = program.keys("Down")
    equal(program.focus()["text"], "Medium")
    equal((state["index"], state["value"], state["events"]), (1, "m", ["options.Click"]))
    assert program.find("Medium").get("checked")
    assert not program.find("Small").get("checked")
    state = program.keys("Down", "Down")
    equal(program.focus()["text"], "Small")
    equal((state["index"], state["events"]), (0, ["options.Click"] * 2))
    state = program.keys("Up")
    equal((state["index"], state["value"]), (2, "l"))
    state = program.click(program.find("Medium"))
    equal((state["index"], state["value"], state["events"]), (1, "m", ["options.Click"]))
    equal(program.focus()["text"], "Medium")
    program.picture("options_chosen")
    state = program.keys("Tab")
    assert program.focus()["text"] not in ("Small", "Medium", "Large"), program.focus()
    equal(state["events"], [])
    program.keys("shift+Tab")
    equal(program.focus()["text"], "Medium")
    program.keys("shift+Tab")
    equal(program.focus()["kind"], "Edit")


def preview_of(program, where="page"):
    return [w for w in program.state[where] if w["text"].startswith("Menu")][0]


def label_hears_clicks(program):
    label = preview_of(program, "form")
    at = (30, 20)  # 450 and 300 twips
    equal(program.click(label, at=at)["events"],
          ["label.MouseDown 1 0 450 300", "label.MouseUp 1 0 450 300", "label.Click"])
    equal(program.click(label, button=3, at=at)["events"],
          ["label.MouseDown 2 0 450 300", "label.MouseUp 2 0 450 300", "label.Click"])
    time.sleep(1)  # so that the next click does not become a double-click
    program.look()
    equal(program.click(label, at=at, times=2)["events"],
          ["label.MouseDown 1 0 450 300", "label.MouseUp 1 0 450 300", "label.Click",
           "label.DblClick", "label.MouseUp 1 0 450 300"])


def page_shows_the_caption(program):
    program.keys("F9")
    equal([w["text"] for w in program.state["page"] if w["kind"] == "Edit"], [CAPTION, "* ", "300"])
    program.click(program.find(CAPTION, "Edit", "page"))
    program.keys("ctrl+Home")
    # The magnifier: the character after the caret and the four that follow.
    program.find("|", "Static", "page")
    program.find("B:1|", "Static", "page")
    for expected in ([0, 5], [5, 9], [9, 14], [14, 18]):
        program.keys("ctrl+s")
        equal(program.focus("page")["selection"], expected)
    equal(program.focus("page")["text"], CAPTION)
    program.find("|CR|", "Static", "page")
    program.picture("page")


def page_magnifies_every_character(program):
    program.keys("ctrl+Home")
    program.type("a&b&")
    program.find("a&b&", "Static", "page")
    program.keys("ctrl+Home", *["shift+Right"] * 4)
    program.find("a&b&", "Static", "page")
    program.picture("page_magnifier")
    program.keys("Delete")
    equal(program.focus("page")["text"], CAPTION)


def field(program, number):
    return [w for w in program.state["page"] if w["kind"] == "Edit"][number]


def page_has_access_keys(program):
    for key, number in (("p", 1), ("i", 2), ("t", 0)):
        program.keys("alt+" + key)
        assert field(program, number).get("focus"), key
    equal(field(program, 0)["text"], CAPTION)


def indent_is_edited_without_ctrl_letters(program):
    program.keys("alt+i", "Home", "shift+End", "ctrl+c", "End", "ctrl+v")
    equal(field(program, 2)["text"], "300")
    program.keys("Home", "shift+End", "ctrl+Insert", "End", "shift+Insert")
    equal(field(program, 2)["text"], "300300")
    program.keys("alt+BackSpace")
    equal(field(program, 2)["text"], "300")
    program.keys("Home", "shift+Right", "shift+Delete")
    equal(field(program, 2)["text"], "00")
    program.keys("shift+Insert")
    equal(field(program, 2)["text"], "300")
    # Select all and cut, from the context menu.
    program.click(field(program, 2), button=3, looks=False)
    time.sleep(1)
    program.picture("page_menu")
    screen("key", "--delay", 200, "Up", "Return")
    equal(program.look()["page"] and field(program, 2)["selection"], [0, 3])
    program.click(field(program, 2), button=3, looks=False)
    time.sleep(1)
    screen("key", "--delay", 200, "t")
    program.look()
    equal(field(program, 2)["text"], "")
    program.keys("shift+Insert")
    equal(field(program, 2)["text"], "300")


def page_scrolls_with_the_wheel(program):
    before = preview_of(program)["place"]
    program.click(preview_of(program), button=5)
    after = preview_of(program)["place"]
    assert after[1] < before[1], (before, after)
    equal(after[0], before[0])
    program.picture("page_scrolled")
    program.click(preview_of(program), button=4, at=(50, 60))
    equal(preview_of(program)["place"], before)


def page_edits_the_caption(program):
    program.keys("ctrl+End", "Return")
    program.type('* "tea"')
    program.keys("ctrl+b")
    program.type("hot")
    program.keys("ctrl+n", "ctrl+i", "ctrl+o", "ctrl+g", "ctrl+l")
    edited = CAPTION + "|CR|* |Q|tea|Q||B:1|hot|B:0||i:1||i:0||Fore:0,128,0||before:0|"
    equal(program.focus("page")["text"], edited)
    equal(program.focus("page")["selection"], [len(edited)] * 2)
    equal(program.state["caption"], CAPTION)
    shown = preview_of(program)["text"]
    for text in ("Menu", "soup", "bread", '"tea"', "hot"):
        assert text in shown, shown
    program.picture("page_edited")
    apply = program.find("Apply", where="page")
    assert not apply.get("disabled")
    equal(program.click(apply)["caption"], edited)
    assert program.find("Apply", where="page").get("disabled")
    equal(program.state["indent"], 300)
    assert "hot" in preview_of(program, "form")["text"]
    return edited


def page_checks_the_indent(program):
    indent = [w for w in program.state["page"] if w["kind"] == "Edit"][2]
    program.click(indent)
    program.keys("Home", "shift+End")
    program.type("12a5b")
    equal(program.focus("page")["text"], "125")
    program.click(program.find("Apply", where="page"))
    equal(program.state["indent"], 125)
    program.click(indent)
    program.keys("Home", "shift+End")
    program.type("10000")
    program.click(program.find("Apply", where="page"))
    program.find("Illegal indent. Must be 0 to 9999", "Static", "dialog")
    program.picture("page_refuses")
    program.close_dialog("Return", PAGE_TITLE_BAR)
    equal(program.state["dialog"], [])
    equal(program.state["indent"], 125)
    # The refused value is still there, to be corrected and applied.
    assert not program.find("Apply", where="page").get("disabled")
    program.click(indent)
    program.keys("End", "BackSpace", "BackSpace")
    equal(program.focus("page")["text"], "100")
    equal(program.click(program.find("Apply", where="page"))["indent"], 100)


def page_wraps_words(program):
    equal(program.state["wraps"], 0)
    program.click(program.find("&Word Wrap", where="page"))
    assert program.find("&Word Wrap", where="page").get("checked")
    equal(program.state["wraps"], 0)
    equal(program.click(program.find("Apply", where="page"))["wraps"], -1)


def page_shows_its_keys(program):
    program.click(program.find("&Keys Help", where="page"))
    texts = [w["text"] for w in program.state["dialog"] if "Ctrl + S" in w["text"]]
    assert texts and "=  Insert  |before:0|" in texts[0], program.state["dialog"]
    program.picture("page_help")
    program.close_dialog("Return", PAGE_TITLE_BAR)
    equal(program.state["dialog"], [])
    program.click(program.find("Close", where="page"), looks=False)
    time.sleep(1)
    program.activate(TITLE_BAR)
    equal(program.look()["page"], [])
    program.picture("label_changed")


def systems_frame_shows_the_page(program, caption):
    program.keys("F8")
    program.find(caption, "Edit", "dialog")
    program.picture("system_frame")
    program.close_dialog("Escape", TITLE_BAR)
    equal(program.state["dialog"], [])


def colours_follow_the_system(program):
    program.keys("F7")
    program.picture("high_contrast")


def main():
    pictures = Path(sys.argv[2])
    pictures.mkdir(parents=True, exist_ok=True)
    program = Program(sys.argv[1], pictures)
    try:
        full = memo_holds_its_limits(program)
        memo_copies_and_pastes(program, full)
        memo_undoes_accepted_edits(program)
        options_are_chosen(program)
        label_hears_clicks(program)
        page_shows_the_caption(program)
        page_magnifies_every_character(program)
        page_has_access_keys(program)
        indent_is_edited_without_ctrl_letters(program)
        page_scrolls_with_the_wheel(program)
        program.click(field(program, 0))
        caption = page_edits_the_caption(program)
        page_checks_the_indent(program)
        page_wraps_words(program)
        page_shows_its_keys(program)
        systems_frame_shows_the_page(program, caption)
        colours_follow_the_system(program)
    except BaseException:
        program.picture("failed")
        raise
    finally:
        program.end()
    print("person: all went as expected")


main()
