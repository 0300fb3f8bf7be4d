#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the real window by mouse, by keyboard and by assistive technology, beside a Messages server on loopback.

usage: test_window.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]

Wants an X server and a session bus of its own (xvfb-run, dbus-run-session).
"""
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

WINDOW, VARLO, FAKE_SERVER, DRAG_SOURCE = map(os.path.abspath, sys.argv[1:5])
PATIENCE = 30  # seconds that anything may take on a busy machine
CONTROLS = {"push button", "check box", "radio button", "combo box", "text", "entry", "page tab", "toggle button"}


def until(ask, what):
    """Asks until the answer is true, which may take as long as PATIENCE."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = ask()
        except gi.repository.GLib.Error:  # what was asked about is gone
            answer = None
        if answer:
            return answer
        time.sleep(0.05)
    raise AssertionError("never came: " + what)


def is_showing(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)


def below(node):
    node.clear_cache()  # not every appearance is announced
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is None:
            continue
        child.clear_cache()
        if is_showing(child):
            yield child
            yield from below(child)


class WindowTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name) / "home"
        self.files = pathlib.Path(folder.name) / "files"
        self.home.mkdir()
        self.files.mkdir()
        self.stderr = open(pathlib.Path(folder.name) / "stderr", "w+", encoding="utf-8")
        self.addCleanup(self.stderr.close)
        self.window = None

    def stop(self):
        self.window.send_signal(signal.SIGTERM)
        self.window.wait(PATIENCE)

    def tearDown(self):
        if self.window:
            self.stop()
        self.stderr.seek(0)
        self.assertEqual(self.stderr.read(), "")

    def write(self, name, text="A text that is long enough to be named."):
        path = self.files / name
        path.write_text(text, encoding="utf-8")
        return str(path)

    def start(self, *files, server=(), key="sk-test-3f9a77"):
        self.model = model = subprocess.Popen([FAKE_SERVER, *server], stdout=subprocess.PIPE, text=True)
        self.addCleanup(model.stdout.close)
        self.addCleanup(model.wait)
        self.addCleanup(model.kill)
        self.environment = os.environ | {
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
            "XDG_DATA_HOME": str(self.home / "data"), "XDG_STATE_HOME": str(self.home / "state"),
            "VARLO_ENDPOINT": model.stdout.readline().strip(), "VARLO_API_KEY": key, "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "VARLO_NO_ANIMATIONS": "1"}
        self.window = subprocess.Popen([WINDOW, *files], env=self.environment, stderr=self.stderr)
        self.frame = until(self.find_frame, "the window")

    def terminal(self, *arguments):
        """Varlo's other program, at the same time, for the same user."""
        environment = self.environment | {"QT_QPA_PLATFORM": "", "DBUS_SESSION_BUS_ADDRESS": ""}
        subprocess.run([VARLO, *arguments], env=environment, stdin=subprocess.DEVNULL, capture_output=True, check=True)

    def find_frame(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application and application.get_process_id() == self.window.pid and application.get_child_count():
                return application.get_child_at_index(0)
        return None

    def nodes(self, name, role=None):
        return [node for node in below(self.frame) if node.get_name() == name and role in (None, node.get_role_name())]

    def find(self, name, role=None):
        return until(lambda: (self.nodes(name, role) or [None])[0], name)

    def rows(self):
        return [node.get_name() for node in below(self.frame) if node.get_role_name() == "list item"]

    def wait_for_row(self, *words):
        return until(lambda: [row for row in self.rows() if all(word in row for word in words)], str(words))

    def press(self, name, within=None):
        """By accessible action: the first button of the name in the window, or in a dialog."""
        place = self.find(within, "dialog") if within else self.frame
        node = until(lambda: [node for node in below(place)
                              if (node.get_name(), node.get_role_name()) == (name, "push button")], name)[0]
        until(lambda: node.get_state_set().contains(Atspi.StateType.ENABLED), name + " enabled")
        node.get_action_iface().do_action(0)

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", text], check=True)

    def click(self, node, at=None):
        place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        x = place.width // 2 if at is None else at
        subprocess.run(["xdotool", "mousemove", str(place.x + x), str(place.y + place.height // 2),
                        "click", "1"], check=True)

    def names(self):
        return sorted(os.listdir(self.files))

    def wait_for_names(self, *names):
        until(lambda: self.names() == sorted(names), f"{names}, not {self.names()}")

    def focus(self):
        """Gives the keyboard to the window, which has no window manager to do it."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.window.pid)],
                               capture_output=True, text=True, check=True).stdout.split()
        subprocess.run(["xdotool", "windowfocus", "--sync", found[-1]], check=True)

    def test_mouse_alone_drops_suggests_renames_and_takes_back(self):
        self.start(server=["--reply", "2025-03-01 - Acme - Invoice"])
        self.find("Drop your files here. Varlo reads your files and suggests a new name based on their contents")
        folder = self.files / "folder"
        folder.mkdir()
        (folder / "inner.txt").touch()
        source = subprocess.Popen([DRAG_SOURCE, self.write("scan.txt"), str(folder)], env=os.environ | {"QT_QPA_PLATFORM": "xcb"})
        self.addCleanup(source.wait)
        self.addCleanup(source.kill)
        until(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(source.pid)],
                                     capture_output=True).stdout, "what files are dragged from")
        subprocess.run(["xdotool", "mousemove", "1150", "40", "mousedown", "1"], check=True)
        for x in (1140, 1100, 900, 620, 610, 600):
            subprocess.run(["xdotool", "mousemove", str(x), "300", "sleep", "0.1"], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        self.wait_for_row("scan.txt", "Pending")
        self.wait_for_row("inner.txt", "Pending")
        self.click(self.find("Suggest Names", "push button"))
        self.wait_for_row("scan.txt", "Suggested", "2025-03-01 - Acme - Invoice.txt")
        self.click(self.find("Rename", "push button"))
        self.wait_for_names("2025-03-01 - Acme - Invoice.txt", "folder")
        self.wait_for_row("2025-03-01 - Acme - Invoice.txt", "Renamed")
        self.click(self.find("History", "push button"))
        self.click(self.find("Revert", "push button"))
        self.wait_for_names("scan.txt", "folder")
        self.find("Reverted")
        self.wait_for_row("scan.txt", "Pending")

    def test_keyboard_alone_reviews_a_batch(self):
        self.start(self.write("a.txt"), self.write("b.txt"), server=["--reply", "Offered"])
        self.focus()
        self.wait_for_row("b.txt", "Pending")
        self.keys("ctrl+Return")
        self.wait_for_row("b.txt", "Suggested")
        self.keys("F6", "F6", "F6", "Home")  # round by the bottom and the top bar to the list again
        self.wait_for_focus("a.txt")
        self.keys("F2")
        self.type("First")
        self.keys("Return")  # accepts and goes on
        self.type("Second")
        self.keys("Escape")  # the name as it was
        self.wait_for_row("b.txt", "Offered.txt")
        self.keys("shift+Return")  # back to the first, all of it selected
        self.type("First one")
        self.wait_for_row("a.txt", "First one.txt")
        self.keys("Down")  # the same place in the row below
        self.wait_for_focus("Suggested name")
        self.keys("ctrl+a")
        self.type("Second one")
        self.keys("ctrl+shift+Return")
        self.wait_for_names("First one.txt", "Second one.txt")
        self.wait_for_row("Second one.txt", "Renamed")
        self.keys("ctrl+z")
        self.wait_for_names("First one.txt", "b.txt")
        self.keys("ctrl+h")
        self.find("Search history")
        self.type("FIRST")
        until(lambda: len([row for row in self.rows() if "was" in row]) == 1, "one rename found")
        self.keys("Escape")  # empties the search
        until(lambda: len([row for row in self.rows() if "was" in row]) == 2, "both renames")
        self.keys("Tab", "Tab", "space")
        self.keys("Escape")
        until(lambda: not self.nodes("Search history"), "a closed history")

    def focused_name(self):
        rows = [node for node in below(self.frame) if node.get_state_set().contains(Atspi.StateType.FOCUSED)]
        return rows[-1].get_name() if rows else ""

    def wait_for_focus(self, start):
        until(lambda: self.focused_name().startswith(start), "the focus on " + start)

    def test_keyboard_looks_quickly(self):
        self.start(self.write("a.txt", "The first file's\n lines."), self.write("b.txt", "Another file's lines."),
                   server=["--reply", "Offered"])
        self.focus()
        self.wait_for_row("b.txt", "Pending")
        self.keys("Home", "space")
        self.find("a.txt", "dialog")
        self.find("The first file's\n lines.")
        self.keys("Down")
        self.find("b.txt", "dialog")
        self.find("Another file's lines.")
        self.keys("space")
        until(lambda: not self.nodes("b.txt", "dialog"), "a closed look")
        self.wait_for_focus("b.txt")  # where the look ended
        self.keys("ctrl+Return")
        self.wait_for_row("b.txt", "Suggested")
        self.keys("F2")
        self.wait_for_focus("Suggested name")
        self.type("two words")
        self.wait_for_row("b.txt", "two words.txt")
        self.keys("Escape", "Escape")
        self.keys("space")
        self.find("Offered.txt")
        self.keys("Escape")
        until(lambda: not self.nodes("b.txt", "dialog"), "a closed look")
        row = until(lambda: [node for node in below(self.frame) if node.get_role_name() == "list item"
                             and node.get_name().startswith("b.txt")], "the row")[0]
        self.click(row, at=35)
        self.find("b.txt", "dialog")
        self.press("Close")
        until(lambda: not self.nodes("b.txt", "dialog"), "a closed look")

    def test_history_follows_the_terminal(self):
        self.start(self.write("a.txt"), self.write("b.txt"), self.write("c.txt"), server=["--reply", "Offered"])
        self.wait_for_row("c.txt", "Pending")
        self.press("History")
        self.find("No renames yet")
        self.terminal("rename", "--yes", str(self.files / "a.txt"), str(self.files / "b.txt"), str(self.files / "c.txt"))
        for name in ("Offered.txt", "Offered 2.txt", "Offered 3.txt"):
            self.wait_for_row(name, "was")
        self.terminal("undo", "--last", "1")
        self.wait_for_row("Offered 3.txt", "Reverted")
        (self.files / "Offered.txt").unlink()
        for name in ("Offered.txt", "Offered 2.txt"):
            self.find(name, "check box").get_action_iface().do_action(0)
        self.find("2 selected")
        self.press("Revert Selected")
        self.find("The file could not be found at its renamed location.", "alert")
        self.wait_for_names("b.txt", "c.txt")
        self.assertFalse(self.nodes("Revert Selected"))

    def test_assistive_technology_can_do_everything(self):
        self.start(self.write("one.txt"), self.write("two.txt"), server=["--reply", "Offered"])
        self.wait_for_row("two.txt", "Pending")
        self.check_names_of_controls()
        self.find("Filename language").get_action_iface().do_action(0)
        self.find("Nederlands", "radio button").get_action_iface().do_action(0)
        until(lambda: self.find("Filename language").get_description() == "Nederlands", "the choice")
        self.press("Suggest Names")
        self.wait_for_row("two.txt", "Suggested")
        self.check_names_of_controls()
        until(lambda: [node for node in below(self.frame) if re.fullmatch(r"2/2, \d+ bytes, \d+\.\ds", node.get_name())],
              "the statistics")
        self.press("Rename")
        self.wait_for_names("Offered.txt", "two.txt")
        self.press("Rename All")
        self.wait_for_names("Offered.txt", "Offered 2.txt")
        self.press("History")
        self.find("Search history")
        self.check_names_of_controls()
        self.press("Revert")
        self.wait_for_names("Offered.txt", "two.txt")
        self.press("Clear History…")
        self.find("Cancel", "push button")
        self.press("Clear", within="Clear History…")
        self.find("No renames yet")
        self.wait_for_names("Offered.txt", "two.txt")

    def check_names_of_controls(self):
        unnamed = [node.get_role_name() for node in below(self.frame)
                   if node.get_role_name() in CONTROLS and not node.get_name()]
        self.assertEqual(unnamed, [])

    def test_failures_say_why(self):
        self.start(self.write("empty.txt", ""), self.write("a.txt"), server=["--status", "500"])
        self.wait_for_row("empty.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("empty.txt", "No text found")
        self.wait_for_row("a.txt", "Failed")
        self.assertTrue([node for node in below(self.frame) if node.get_description() == "HTTP 500"])

    def test_a_file_goes_from_status_to_status(self):
        self.start(self.write("a.txt"), server=["--reply", "Offered", "--delay", "3600000"])
        self.wait_for_row("a.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Analyzing…")
        self.model.kill()
        self.wait_for_row("a.txt", "Failed")
        self.stop()
        self.start(str(self.files / "a.txt"), server=["--reply", "Offered"])
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Suggested", "Offered.txt")
        self.press("Rename")
        self.wait_for_row("Offered.txt", "Renamed")
        self.stop()
        self.start(str(self.files / "Offered.txt"))
        self.wait_for_row("Offered.txt", "Already renamed")

    def test_names_are_text_and_nothing_else(self):
        names = ["<b>x.txt", "<img src='x'>.txt", "annex\u202etxt.txt", "two\nlines.txt"]
        self.start(*map(self.write, names), server=["--reply", "a\u202eb", "--delay", "0"])
        for shown in (names[0], names[1], "annex\\u202etxt.txt", "two\\nlines.txt"):
            self.wait_for_row(shown, "Pending")
        self.press("Suggest Names")
        self.wait_for_row(names[0], "Suggested", "ab.txt")
        self.press("Rename All")
        self.wait_for_names("ab.txt", "ab 2.txt", "ab 3.txt", "ab 4.txt")
        self.press("History")
        self.wait_for_row("ab 4.txt", "was two\\nlines.txt")

    def test_missing_key_and_nothing_to_name_are_told(self):
        self.start(self.write("film.mp4"), key="")
        self.find("Nothing here Varlo can rename.", "alert")
        self.press("View all")
        self.find(".heic")
        self.press("Close")
        self.press("Dismiss")
        until(lambda: not self.nodes("Nothing here Varlo can rename."), "no banner")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
