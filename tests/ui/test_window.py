#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the real window by mouse, by keyboard and by assistive technology, beside a Messages server on loopback.

usage: test_window.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]

Wants an X server and a session bus of its own (xvfb-run, dbus-run-session).
"""
import os
import re
import subprocess

from window_driver import DRAG_SOURCE, PATIENCE, WINDOW, WindowTest, below, is_available, main, until


class MainWindowTest(WindowTest):
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
        self.check_names()
        self.assertFalse(is_available(self.find("Rename All", "push button")))
        self.assertTrue(is_available(self.find("Suggest Names", "push button")))
        self.find("Filename language").get_action_iface().do_action(0)
        self.find("Filename language", "dialog")
        self.check_names()
        self.find("Nederlands", "radio button").get_action_iface().do_action(0)
        until(lambda: self.find("Filename language").get_description() == "Nederlands", "the choice")
        self.press("Suggest Names")
        self.wait_for_row("two.txt", "Suggested")
        self.check_names()
        self.assertTrue(is_available(self.find("Rename All", "push button")))
        self.assertFalse(is_available(self.find("Suggest Names", "push button")))
        until(lambda: [node for node in below(self.frame) if re.fullmatch(r"2/2, \d+ bytes, \d+\.\ds", node.get_name())],
              "the statistics")
        self.press("Rename")
        self.wait_for_names("Offered.txt", "two.txt")
        self.press("Rename All")
        self.wait_for_names("Offered.txt", "Offered 2.txt")
        self.press("History")
        self.find("Search history")
        self.check_names()
        self.press("Revert")
        self.wait_for_names("Offered.txt", "two.txt")
        self.press("Clear History…")
        self.find("Cancel", "push button")
        self.press("Clear", within="Clear History…")
        self.find("No renames yet")
        self.wait_for_names("Offered.txt", "two.txt")

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

    def test_it_moves_without_complaint(self):
        self.start(self.write("a.txt"), server=["--reply", "Offered", "--delay", "300"], is_animated=True)
        self.wait_for_row("a.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Suggested")
        self.press("Rename")
        self.wait_for_row("Offered.txt", "Renamed")
        self.press("History")
        self.press("Revert")
        self.wait_for_row("a.txt", "Pending")
        self.press("Close", within="History")
        self.wait_for_none("History", "dialog")

    def test_ending_while_rows_are_made_says_nothing(self):
        self.start()
        self.stop()
        for index in range(200):
            self.write(f"{index}.txt")
        self.window = subprocess.Popen([WINDOW, str(self.files)], stderr=self.stderr,
                                       env=self.environment | {"VARLO_QUIT_AT_ROWS": "200"})
        self.assertEqual(self.window.wait(PATIENCE), 0)  # and what it said is looked at with every test

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
    main()
