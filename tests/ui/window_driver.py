# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the real window by mouse, by keyboard and by assistive technology, beside a Messages server on loopback.

A test program that uses this is called as `test_x.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]` and
wants an X server and a session bus of its own (in-own-desktop).
"""
import json
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

WINDOW, VARLO, FAKE_SERVER, DRAG_SOURCE = map(os.path.abspath, sys.argv[1:5])
PATIENCE = 30  # seconds that anything may take on a busy machine
NAMED = {"push button", "check box", "radio button", "combo box", "text", "entry", "page tab", "toggle button",
         "password text", "dialog", "popup menu", "menu bar", "menu item", "list", "list item", "page tab list"}
NOT_AVAILABLE = "Not available now"  # since Qt 6.4 says of every item that it is enabled

# Its own limit, less than a second, is over before a machine under load has shown a chooser for the first time.
Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)


read_role_name = Atspi.Accessible.get_role_name


def get_role_name(node):
    """Of buttons, what they were called before at-spi2-core 2.55."""
    name = read_role_name(node)
    return "push button" if name == "button" else name


Atspi.Accessible.get_role_name = get_role_name


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


def has_state(node, *states):
    return all(node.get_state_set().contains(state) for state in states)


def is_available(node):
    return has_state(node, Atspi.StateType.ENABLED) and node.get_description() != NOT_AVAILABLE


def is_showing(node):
    return has_state(node, Atspi.StateType.SHOWING, Atspi.StateType.VISIBLE)


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
        self.preferences_file = self.home / "config/varlo/preferences.json"
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
        # Qt 6.8 says so when what a test has just asked about is gone by then.
        late = "qt.accessibility.atspi: Could not find accessible on path: "
        self.assertEqual([line for line in self.stderr if not line.startswith(late)], [])

    def write(self, name, text="A text that is long enough to be named."):
        path = self.files / name
        path.write_text(text, encoding="utf-8")
        return str(path)

    def preferences(self):
        return json.loads(self.preferences_file.read_text(encoding="utf-8"))

    def set_preferences(self, **values):
        self.preferences_file.parent.mkdir(parents=True, exist_ok=True)
        self.preferences_file.write_text(json.dumps(values), encoding="utf-8")

    def serve(self, *arguments):
        """A model on loopback; its address."""
        self.model = model = subprocess.Popen([FAKE_SERVER, *arguments], stdout=subprocess.PIPE, text=True)
        self.addCleanup(model.stdout.close)
        self.addCleanup(model.wait)
        self.addCleanup(model.kill)
        return model.stdout.readline().strip()

    def start(self, *files, server=(), key="sk-test-3f9a77", environment=None, is_animated=False):
        if not self.preferences_file.exists():
            self.set_preferences(hasCompletedOnboarding=True)
        model = {} if server is None else {"VARLO_ENDPOINT": self.serve(*server), "VARLO_API_KEY": key}
        self.environment = os.environ | {
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
            "XDG_DATA_HOME": str(self.home / "data"), "XDG_STATE_HOME": str(self.home / "state"), "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "VARLO_NO_ANIMATIONS": "1"} | model | (environment or {})
        if is_animated:
            del self.environment["VARLO_NO_ANIMATIONS"]
        self.window = subprocess.Popen([WINDOW, *files], env=self.environment, stderr=self.stderr)
        self.frame = until(self.find_frame, "the window")

    def start_with_opener(self, *files, **others):
        """Beside a desktop that only notes down what it is to open; where it does."""
        opened = self.home / "opened"
        opened.touch()
        programs = self.home / "bin"
        programs.mkdir(exist_ok=True)
        fake = programs / "xdg-open"
        fake.write_text(f'#!/bin/sh\necho "$1" >> {opened}\n')
        fake.chmod(0o755)
        self.start(*files, environment={"PATH": f"{programs}:/usr/bin:/bin"}, **others)
        return opened

    def terminal(self, *arguments, given=""):
        """Varlo's other program, at the same time, for the same user; what it prints."""
        environment = self.environment | {"QT_QPA_PLATFORM": ""}
        return subprocess.run([VARLO, *arguments], env=environment, input=given, capture_output=True, text=True,
                              check=True).stdout

    def find_frame(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application and application.get_process_id() == self.window.pid and application.get_child_count():
                return application.get_child_at_index(0)
        return None

    def all_nodes(self):
        """In every window of the program, as Qt 6.8 shows its own choosers in one beside ours."""
        return below(self.frame.get_parent())

    def nodes(self, name, role=None, within=None):
        return [node for node in (below(within) if within else self.all_nodes())
                if node.get_name() == name and role in (None, node.get_role_name())]

    def find(self, name, role=None, within=None):
        return until(lambda: (self.nodes(name, role, within) or [None])[0], name)

    def wait_for_none(self, name, role=None):
        until(lambda: not self.nodes(name, role), "no " + name)

    def rows(self):
        return [node.get_name() for node in below(self.frame) if node.get_role_name() == "list item"]

    def wait_for_row(self, *words):
        return until(lambda: [row for row in self.rows() if all(word in row for word in words)], str(words))

    def press(self, name, within=None, role="push button"):
        """By accessible action: the first button of the name in the window, or in a dialog."""
        place = self.find(within, "dialog") if within else self.frame
        node = until(lambda: [node for node in below(place)
                              if (node.get_name(), node.get_role_name()) == (name, role)], name)[0]
        until(lambda: is_available(node), name + " enabled")
        self.press_node(node)

    def press_node(self, node):
        action = node.get_action_iface()
        names = [action.get_action_name(index) for index in range(action.get_n_actions())]
        action.do_action(names.index("Press"))

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", text], check=True)

    def place(self, node):
        return node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)

    def click(self, node, at=None):
        place = self.place(node)
        x = place.width // 2 if at is None else at
        subprocess.run(["xdotool", "mousemove", str(place.x + x), str(place.y + place.height // 2),
                        "click", "1"], check=True)

    def drag(self, node, x, y):
        """From the node's left part to a point of the screen, in steps as a hand makes them."""
        place = self.place(node)
        subprocess.run(["xdotool", "mousemove", str(place.x + 12), str(place.y + place.height // 2), "mousedown", "1"],
                       check=True)
        for part in range(1, 9):
            subprocess.run(["xdotool", "mousemove", str(place.x + 12 + (x - place.x - 12) * part // 8),
                            str(place.y + place.height // 2 + (y - place.y - place.height // 2) * part // 8),
                            "sleep", "0.05"], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)

    def names(self):
        return sorted(os.listdir(self.files))

    def wait_for_names(self, *names):
        until(lambda: self.names() == sorted(names), f"{names}, not {self.names()}")

    def focus(self):
        """Gives the keyboard to the window, which has no window manager to do it."""
        subprocess.run(["xdotool", "windowfocus", "--sync", self.x_windows()[-1]], check=True)

    def x_windows(self):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.window.pid)],
                              capture_output=True, text=True, check=True).stdout.split()

    def focused_name(self):
        nodes = [node for node in below(self.frame) if has_state(node, Atspi.StateType.FOCUSED)]
        return nodes[-1].get_name() if nodes else ""

    def wait_for_focus(self, start):
        until(lambda: self.focused_name().startswith(start), f"the focus on {start}")

    def tab_to(self, name):
        """With the tab key alone, which comes round once."""
        for _ in range(40):
            if self.focused_name() == name:
                return
            self.keys("Tab")
            time.sleep(0.05)
        raise AssertionError("the tab key never comes to " + name)

    def check_names(self):
        # Qt 6.4 gives a password field no name, whatever it is told; its description stands in.
        unnamed = [node.get_role_name() for node in below(self.frame)
                   if node.get_role_name() in NAMED and not (node.get_name() or node.get_description())]
        self.assertEqual(unnamed, [])


def main():
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
