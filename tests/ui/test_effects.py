#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Presses every button of every screen, and wants something to come of it.

usage: test_effects.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]
"""
import base64
import itertools
import json
import subprocess

from window_driver import PATIENCE, WINDOW, Atspi, WindowTest, below, has_state, is_available, main, until

BUTTONS = ("push button", "check box", "radio button", "page tab")
STATES = (Atspi.StateType.CHECKED, Atspi.StateType.SELECTED, Atspi.StateType.FOCUSED)
TEMPLATE = {"id": "reports", "name": "Client reports", "fields": ["date", "title"]}


class EffectsTest(WindowTest):
    def seen(self):
        return [(node.get_name(), node.get_description(), *(has_state(node, state) for state in STATES))
                for node in self.all_nodes()], self.preferences(), self.names(), self.opened.read_text()

    def buttons(self, place):
        """That can be pressed and were not chosen already, by role and name."""
        chosen = ("radio button", Atspi.StateType.CHECKED), ("page tab", Atspi.StateType.SELECTED)
        return {(node.get_role_name(), node.get_name()): node for node in below(place)
                if node.get_role_name() in BUTTONS and is_available(node)
                and not any(node.get_role_name() == role and has_state(node, state) for role, state in chosen)}

    def close_everything(self):
        def is_closed():
            if not [node for node in self.all_nodes() if node.get_role_name() == "dialog"]:
                self.focus()
                return True
            for window in self.x_windows():
                subprocess.run(["xdotool", "windowfocus", window, "key", "Escape"], check=False)  # it may be gone by now
            return False
        until(is_closed, "the bare window")

    def check(self, open_place, dialog=None):
        """Each button by itself, on the screen as it is when it is opened."""
        names = None
        tried = set()
        while names is None or names - tried:
            open_place()
            found = self.buttons(self.find(dialog, "dialog") if dialog else self.frame)
            names = set(found) if names is None else names
            left = [name for name in found if name in names - tried]
            self.assertTrue(left, names - tried)
            before = self.seen()
            self.press_node(found[left[0]])
            until(lambda: self.seen() != before, f"an effect of {left[0]} in {dialog or 'the window'}")
            tried.add(left[0])
            if self.preferences().get("uiLanguage", "system") != "system":
                self.terminal("config", "set", "uiLanguage", "system")  # else the buttons have other names
                self.find("Settings", "push button")
            self.close_everything()
        return len(tried)

    def open_settings(self, tab):
        self.press("Settings")
        self.press(tab, role="page tab")
        until(lambda: has_state(self.find(tab, "page tab"), Atspi.StateType.SELECTED), tab)

    def open_template(self):
        self.store_template()
        self.open_settings("Templates")
        self.press("Client reports", within="Settings")
        self.find("Title", "push button")

    def store_template(self):
        stored = json.loads(base64.b64decode(self.preferences()["templates"])) if "templates" in self.preferences() else []
        if TEMPLATE not in stored:
            others = [each for each in stored if each["id"] != TEMPLATE["id"]]
            templates = base64.b64encode(json.dumps([*others, TEMPLATE]).encode()).decode()
            self.set_preferences(**self.preferences() | {"templates": templates})

    def test_settings(self):
        self.set_preferences(hasCompletedOnboarding=True, folderBookmarks={"/no/where": ""})
        self.store_template()
        self.opened = self.start_with_opener()
        self.focus()
        tried = sum(self.check(lambda tab=tab: self.open_settings(tab), "Settings")
                    for tab in ("Language", "Templates", "Folders", "Tags", "Watch Folder", "About"))
        tried += self.check(self.open_template, "Settings")
        self.assertGreater(tried, 50)

        def open_key():
            self.open_settings("About")
            self.press("Use your own provider", within="Settings")
            self.find("Server address")
        self.check(open_key, "Use your own provider")

        def open_formats():
            self.open_settings("About")
            self.press("View List")
        self.check(open_formats, "Supported formats")

        def open_deletion():
            self.open_template()
            self.press("Delete Template…")
        self.check(open_deletion, "Delete Template…")

    def hand_over(self, *paths):
        subprocess.run([WINDOW, *paths], env=self.environment, check=True, timeout=PATIENCE)

    def test_empty_window(self):
        self.opened = self.start_with_opener()
        self.focus()
        self.assertGreater(self.check(lambda: self.find("View all")), 6)
        self.check(lambda: (self.hand_over(self.write("film.mp4")), self.find("Dismiss")))

    def test_window_with_files(self):
        watched = self.home / "watched"
        watched.mkdir()
        self.set_preferences(hasCompletedOnboarding=True, watchFolderEnabled=True, watchFolderPath=str(watched))
        self.store_template()
        self.opened = self.start_with_opener(server=["--reply", "Offered"])
        self.focus()

        def fill():
            for name in ("a.txt", "b.txt"):
                if not any(name in row for row in self.rows()):
                    self.hand_over(self.write(name))
                    self.wait_for_row(name, "Pending")

        def suggest():
            fill()
            if is_available(self.find("Suggest Names", "push button")):
                self.press("Suggest Names")
            self.wait_for_row("Suggested")
            until(lambda: not any("Pending" in row for row in self.rows()), "all suggestions")
        self.check(fill)
        self.assertGreater(self.check(suggest), 8)

        def open_language():
            suggest()
            self.press("Filename language")
        self.check(open_language, "Filename language")

        def open_template():
            self.store_template()
            suggest()
            for _ in range(2):  # the second time for a template that can be deleted
                self.press("Choose template")
                self.press_node(self.find("Client reports", "radio button"))
            self.press("Choose template")
            self.find("Delete Template…")
        self.check(open_template, "Choose template")

        numbers = itertools.count()

        def open_history():  # with a rename that stands
            self.press("Clear")
            self.hand_over(self.write(f"{next(numbers)}.txt"))
            self.wait_for_row("Pending")
            for button in "Suggest Names", "Rename All":
                if is_available(self.find(button, "push button")):
                    self.press(button)
                    until(lambda: not is_available(self.find(button, "push button")), "the end of " + button)
                    until(lambda: not any("Analyzing" in row for row in self.rows()), "all suggestions")
            self.press("History")
        self.check(open_history, "History")


if __name__ == "__main__":
    main()
