#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the real window by mouse, by keyboard and by assistive technology, beside a Messages server on loopback.

usage: test_window.py WINDOW FAKE_SERVER DRAG_SOURCE [unittest argument...]

Wants an X server and a session bus of its own (xvfb-run, dbus-run-session).
"""
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

WINDOW, FAKE_SERVER, DRAG_SOURCE = map(os.path.abspath, sys.argv[1:4])
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
        if child is not None and is_showing(child):
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

    def tearDown(self):
        if self.window:
            self.window.send_signal(signal.SIGTERM)
            self.window.wait(PATIENCE)
        self.stderr.seek(0)
        self.assertEqual(self.stderr.read(), "")

    def write(self, name, text="A text that is long enough to be named."):
        path = self.files / name
        path.write_text(text, encoding="utf-8")
        return str(path)

    def start(self, *files, server=(), key="sk-test-3f9a77"):
        model = subprocess.Popen([FAKE_SERVER, *server], stdout=subprocess.PIPE, text=True)
        self.addCleanup(model.stdout.close)
        self.addCleanup(model.wait)
        self.addCleanup(model.kill)
        environment = os.environ | {
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
            "XDG_DATA_HOME": str(self.home / "data"), "XDG_STATE_HOME": str(self.home / "state"),
            "VARLO_ENDPOINT": model.stdout.readline().strip(), "VARLO_API_KEY": key, "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "VARLO_NO_ANIMATIONS": "1"}
        self.window = subprocess.Popen([WINDOW, *files], env=environment, stderr=self.stderr)
        self.frame = until(self.find_frame, "the window")

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

    def click(self, node):
        place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        subprocess.run(["xdotool", "mousemove", str(place.x + place.width // 2), str(place.y + place.height // 2),
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
        source = subprocess.Popen([DRAG_SOURCE, self.write("scan.txt")], env=os.environ | {"QT_QPA_PLATFORM": "xcb"})
        self.addCleanup(source.wait)
        self.addCleanup(source.kill)
        until(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(source.pid)],
                                     capture_output=True).stdout, "what files are dragged from")
        subprocess.run(["xdotool", "mousemove", "1150", "40", "mousedown", "1"], check=True)
        for x in (1140, 1100, 900, 620, 610, 600):
            subprocess.run(["xdotool", "mousemove", str(x), "300", "sleep", "0.1"], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        self.wait_for_row("scan.txt", "Pending")
        self.click(self.find("Suggest Names", "push button"))
        self.wait_for_row("scan.txt", "Suggested", "2025-03-01 - Acme - Invoice.txt")
        self.click(self.find("Rename", "push button"))
        self.wait_for_names("2025-03-01 - Acme - Invoice.txt")
        self.wait_for_row("2025-03-01 - Acme - Invoice.txt", "Renamed")
        self.click(self.find("History", "push button"))
        self.click(self.find("Revert", "push button"))
        self.wait_for_names("scan.txt")
        self.find("Reverted")
        self.wait_for_row("scan.txt", "Pending")

    def test_keyboard_alone_reviews_a_batch(self):
        self.start(self.write("a.txt"), self.write("b.txt"), server=["--reply", "Offered"])
        self.focus()
        self.wait_for_row("b.txt", "Pending")
        self.keys("ctrl+Return")
        self.wait_for_row("b.txt", "Suggested")
        self.keys("F6", "F6", "F6", "Home")  # round by the bottom and the top bar to the list again
        until(lambda: self.focused_name().startswith("a.txt"), "the first row")
        self.keys("F2")
        self.type("First")
        self.keys("Return")  # accepts and goes on
        self.type("Second")
        self.keys("Escape")  # the name as it was
        self.wait_for_row("b.txt", "Offered.txt")
        self.type("Second one")
        self.keys("ctrl+shift+Return")
        self.wait_for_names("First.txt", "Second one.txt")
        self.wait_for_row("Second one.txt", "Renamed")
        self.keys("ctrl+z")
        self.wait_for_names("First.txt", "b.txt")
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

    def test_assistive_technology_can_do_everything(self):
        self.start(self.write("one.txt"), self.write("two.txt"), server=["--reply", "Offered"])
        self.wait_for_row("two.txt", "Pending")
        self.check_names_of_controls()
        self.press("Suggest Names")
        self.wait_for_row("two.txt", "Suggested")
        self.check_names_of_controls()
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

    def test_each_status_has_its_look(self):
        self.start(self.write("empty.txt", ""), self.write("a.txt"), server=["--status", "500"])
        self.wait_for_row("empty.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("empty.txt", "No text found")
        self.wait_for_row("a.txt", "Failed")
        self.assertTrue([node for node in below(self.frame) if node.get_description() == "HTTP 500"])

    def test_missing_key_and_nothing_to_name_are_told(self):
        self.start(self.write("film.mp4"), key="")
        self.find("Nothing here Varlo can rename.", "alert")
        self.press("View all")
        self.find(".heic")
        self.press("Close")
        self.press("Dismiss")
        until(lambda: not self.nodes("Nothing here Varlo can rename."), "no banner")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
