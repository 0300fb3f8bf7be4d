#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window as a program of the desktop: its menu and shortcuts, its size, its language, and one of it a session."""
import os
import pathlib
import signal
import subprocess
import time
import unittest

import dbus
import dbusmock
from gi.repository import Gio, GLib

from window_driver import PATIENCE, VARLO, WINDOW, WindowTest, below, is_available, main, until

BUS = ["--session", "--dest", "com.varlo.Varlo", "--object-path", "/com/varlo/Varlo", "--method"]
REGISTRAR, REGISTRAR_PATH = "com.canonical.AppMenu.Registrar", "/com/canonical/AppMenu/Registrar"
MOCK, DBUSMENU = "org.freedesktop.DBus.Mock", "com.canonical.dbusmenu"
UGLY = [b"with space & more.txt", b"two\nlines.txt", b"percent%41.txt", b"latin-\xe9t\xe9.txt", b"-rf.txt", "kaçé.txt".encode()]


class ShellTest(WindowTest):
    def entry(self, name):
        return self.find(name, "menu item")

    def call(self, method, *arguments, code=0):
        run = subprocess.run(["gdbus", "call", *BUS, "org.freedesktop.Application." + method, *arguments],
                             capture_output=True, text=True)
        self.assertEqual(run.returncode, code, run.stderr)
        return run.stderr

    def start_another(self, *files, program=(WINDOW,), **environment):
        return subprocess.Popen([*program, *files], env=self.environment | environment)

    def messages(self):
        return [node.get_description() for node in below(self.frame)
                if node.get_role_name() == "list item" and node.get_description()]

    def wait_for_count(self, words):
        until(lambda: [node for node in below(self.frame) if words in node.get_name()], words)

    def geometry(self):
        place = self.place(self.frame)
        return place.width, place.height

    def write_ugly(self):
        paths = [os.path.join(os.fsencode(self.files), name) for name in UGLY]
        for path in paths:
            pathlib.Path(os.fsdecode(path)).write_text("A text that is long enough to be named.")
        return paths

    def wait_for_ugly_rows(self):
        until(lambda: len(self.rows()) == len(UGLY), f"{len(UGLY)} rows, not {self.rows()}")
        self.press("Suggest Names")
        until(lambda: all("Suggested" in row for row in self.rows()), "names for all, which are read by their bytes")

    def test_menu_by_keyboard_alone(self):
        self.start(self.write("a.txt"), server=["--reply", "Offered"])
        self.focus()
        self.wait_for_row("a.txt", "Pending")
        for key in ("F10", "Alt_L"):
            with self.subTest(key):
                self.press("Suggest Names")
                self.wait_for_row("a.txt", "Suggested")
                self.press("Rename")
                self.wait_for_names("Offered.txt")
                self.keys(key)
                self.assertFalse(is_available(self.entry("Check for Updates…")))
                self.assertTrue(is_available(self.entry("Settings…")))
                self.check_names()
                self.keys("Down", "Return")  # from "Settings…", the first that can be chosen
                self.wait_for_names("a.txt")
                self.wait_for_none("Menu bar")
                self.wait_for_row("a.txt", "Pending")
        self.keys("F10")
        self.entry("Undo")
        self.keys("Escape")
        self.wait_for_none("Undo", "menu item")
        self.keys("alt+F6")  # Alt with another key is no wish for the menu
        self.keys("ctrl+h")
        self.find("Search history")
        self.assertFalse(self.nodes("Undo", "menu item"))

    def start_registrar(self):
        """Of a desktop that shows the menus of all windows in one place."""
        registrar = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", REGISTRAR, REGISTRAR_PATH, REGISTRAR],
                                     stdout=subprocess.DEVNULL)
        self.addCleanup(registrar.wait)
        self.addCleanup(registrar.kill)
        until(lambda: self.ask(REGISTRAR, REGISTRAR_PATH, "org.freedesktop.DBus.Peer", "Ping") is not None, "it")
        self.ask(REGISTRAR, REGISTRAR_PATH, MOCK, "AddMethod", "(sssss)", "", "RegisterWindow", "uo", "", "")

    def ask(self, name, path, interface, method, form="()", *arguments):
        return Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            name, path, interface, method, GLib.Variant(form, arguments), None, Gio.DBusCallFlags.NONE, -1).unpack()

    def global_menu(self, path):
        """Its entries that are no separators, by their words."""
        _, (_, _, menus) = self.ask("com.varlo.Varlo", path, DBUSMENU, "GetLayout", "(iias)", 0, -1, [])
        return {entry[1]["label"]: entry for entry in menus[0][2] if "label" in entry[1]}

    def test_global_menu_has_the_same_entries(self):
        self.start_registrar()
        self.start(self.write("a.txt"), server=["--reply", "Offered"])
        calls = until(lambda: self.ask(REGISTRAR, REGISTRAR_PATH, MOCK, "GetMethodCalls", "(s)", "RegisterWindow")[0], "a menu")
        path = calls[-1][1][1]
        menu = self.global_menu(path)
        self.assertEqual([(label, entry[1]["enabled"]) for label, entry in menu.items()],
                         [("Check for Updates…", False), ("Settings…", True), ("Undo", True)])

        def choose(label):
            self.ask("com.varlo.Varlo", path, DBUSMENU, "Event", "(isvu)", menu[label][0], "clicked", GLib.Variant("i", 0), 0)
        self.press("Suggest Names")
        self.press("Rename")
        self.wait_for_names("Offered.txt")
        choose("Undo")
        self.wait_for_names("a.txt")
        choose("Settings…")
        self.find("Settings", "dialog")
        self.focus()
        self.keys("Escape")
        self.wait_for_none("Settings", "dialog")
        self.keys("ctrl+comma")  # which the menu must not take from the window
        self.find("Settings", "dialog")
        until(lambda: not self.global_menu(path)["Settings…"][1]["enabled"], "an entry that has nothing to do")
        self.terminal("config", "set", "uiLanguage", "nl")
        until(lambda: "Instellingen…" in self.global_menu(path), "the menu in Dutch")

    def test_undo_takes_back_typing_and_then_renames(self):
        self.start(self.write("a.txt"), self.write("b.txt"), server=["--reply", "Offered"])
        self.focus()
        self.wait_for_row("b.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("b.txt", "Suggested")
        self.press("Rename")
        self.wait_for_names("Offered.txt", "b.txt")
        self.click(self.find("Suggested name"))
        self.keys("ctrl+a")
        self.type("Typed")
        self.wait_for_row("b.txt", "Typed.txt")
        self.keys("ctrl+z")
        self.wait_for_row("b.txt", "Offered.txt")
        self.assertEqual(self.names(), ["Offered.txt", "b.txt"])
        self.keys("ctrl+z")  # nothing is left to undo in the field
        self.wait_for_names("a.txt", "b.txt")
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Suggested")
        self.press("Rename All")
        self.wait_for_names("Offered.txt", "Offered 2.txt")
        self.keys("F10")
        self.click(self.entry("Undo"))
        self.wait_for_names("Offered.txt", "b.txt")

    def test_size_is_remembered(self):
        self.start()
        self.assertEqual(self.geometry(), (1080, 720))
        self.focus()
        subprocess.run(["xdotool", "getwindowfocus", "windowsize", "--sync", "913", "641"], check=True)
        until(lambda: self.preferences().get("windowSize") == "913x641", "a stored size")
        self.stop()
        self.start()
        self.assertEqual(self.geometry(), (913, 641))
        self.stop()
        for stored, shown in (("9999x9999", (1200, 900)), ("1x1", (640, 480)), ("wide", (1080, 720))):
            with self.subTest(stored):
                self.set_preferences(hasCompletedOnboarding=True, windowSize=stored)
                self.start()
                self.assertEqual(self.geometry(), shown)
                self.stop()

    def test_language_changes_at_once(self):
        self.start(self.write("empty.txt", ""), self.write("a.txt"), server=["--reply", "too long " * 20])
        self.wait_for_row("a.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Failed")
        self.terminal("config", "set", "uiLanguage", "nl")
        self.wait_for_row("empty.txt", "Geen tekst gevonden")
        self.wait_for_row("a.txt", "Mislukt")
        self.find("Alles hernoemen", "push button")
        until(lambda: self.messages() == ["Onverwacht antwoord van het model."], "a stored message, in Dutch")
        self.terminal("config", "set", "uiLanguage", "es")
        self.find("Renombrar todo", "push button")
        self.wait_for_row("a.txt", "Error")
        self.focus()
        self.keys("Home", "space")
        look = self.find("empty.txt", "dialog")
        self.find("Sin texto", within=look)
        self.terminal("config", "set", "uiLanguage", "en")
        self.find("No text found", within=look)
        self.wait_for_row("a.txt", "Failed")

    def test_second_start_hands_its_files_over(self):
        self.start(server=["--reply", "Offered"])
        second = self.start_another("--", *self.write_ugly())
        self.assertEqual(second.wait(PATIENCE), 0)
        self.wait_for_ugly_rows()
        self.assertIsNone(self.window.poll())

    def test_terminal_hands_its_files_over(self):
        self.start(server=["--reply", "Offered"])
        self.write_ugly()
        second = self.start_another(str(self.files), program=(VARLO, "open"), XDG_ACTIVATION_TOKEN="token",
                                    DESKTOP_STARTUP_ID="id_TIME1")
        self.assertEqual(second.wait(PATIENCE), 0)
        self.wait_for_ugly_rows()

    def test_starts_at_once_make_one_window(self):
        self.start()
        self.stop()
        names = [f"{index}.txt" for index in range(6)]
        starts = [self.start_another(self.write(name)) for name in names]
        until(lambda: sum(start.poll() is None for start in starts) == 1
              and all(start.poll() in (None, 0) for start in starts), "five that have handed over")
        self.window = next(start for start in starts if start.poll() is None)
        self.frame = until(self.find_frame, "the window")
        for name in names:
            self.wait_for_row(name, "Pending")

    def test_bus_opens_files_and_does_actions(self):
        self.start(server=["--reply", "Offered"])
        with open(self.files / "one.txt", "w", encoding="utf-8") as file:
            file.write("A text that is long enough to be named.")
        self.call("Open", "['http://example.org/x.txt', 'file://elsewhere/x.txt', 'file:', '%', '', 'file:///%00.txt', "
                  f"'file://{self.files}/%6fne.txt']", "{'activation-token': <'token'>, 'desktop-startup-id': <42>}")
        self.wait_for_row("one.txt", "Pending")
        self.assertEqual(len(self.rows()), 1)
        self.call("Activate", "{}")
        self.call("ActivateAction", "history", "[]", "{}")
        self.find("Search history")
        self.assertIn("no such action", self.call("ActivateAction", "format-disk", "[]", "{}", code=1))
        many = self.files / "many"
        many.mkdir()
        for index in range(3000):
            (many / f"{index:04}.txt").touch()
        uris = [f"file://{many}/{index:04}.txt" for index in range(3000)]
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "com.varlo.Varlo", "/com/varlo/Varlo", "org.freedesktop.Application", "Open",
            GLib.Variant("(asa{sv})", (uris, {})), None, Gio.DBusCallFlags.NONE, PATIENCE * 1000, None)
        self.wait_for_count("/3001")

    def test_started_by_the_bus_it_waits_for_the_call(self):
        self.start()
        self.stop()
        path = self.write("one.txt")
        self.window = self.start_another("--dbus")
        until(lambda: subprocess.run(["gdbus", "introspect", *BUS[:-1]], capture_output=True).returncode == 0, "the name")
        time.sleep(0.5)
        self.assertIsNone(self.find_frame())
        self.call("Open", f"['file://{path}']", "{}")
        self.frame = until(self.find_frame, "the window")
        self.wait_for_row("one.txt", "Pending")

    def test_names_of_a_notification_are_not_asked_for_again(self):
        service, desktop = dbusmock.DBusTestCase.spawn_server_template("notification_daemon", {"capabilities": "actions"})
        self.addCleanup(service.wait)
        self.addCleanup(service.kill)
        self.start(server=["--reply", "Offered"])
        self.write("a.txt")
        self.write("b.txt")
        watch = self.start_another("watch", "--notify", "--include-existing", str(self.files), program=(VARLO,))
        self.addCleanup(watch.wait)
        self.addCleanup(watch.kill)
        until(lambda: desktop.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE), "a notification")
        os.replace(self.write("b.txt.new"), self.files / "b.txt")  # another file by now, of which nobody has seen anything
        desktop.EmitSignal("org.freedesktop.Notifications", "ActionInvoked", "us", [dbus.UInt32(1), "review"],
                           dbus_interface=dbusmock.MOCK_IFACE)
        self.wait_for_row("a.txt", "Suggested")
        self.wait_for_row("b.txt", "Pending")
        self.press("Rename All")
        self.wait_for_names("Offered.txt", "b.txt")
        self.model.terminate()
        self.assertIn("2 requests", self.model.stdout.read())

    def test_without_a_bus_it_starts(self):
        self.start()
        self.stop()
        alone = self.start_another(DBUS_SESSION_BUS_ADDRESS="", XDG_RUNTIME_DIR=str(self.home))
        until(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(alone.pid)],
                                     capture_output=True).stdout, "a window")
        alone.send_signal(signal.SIGTERM)
        alone.wait(PATIENCE)

    def test_closing_ends_after_the_rename_in_hand(self):
        count = 900  # of more, the history would forget the first
        for index in range(count):  # a name has 99 numbers in a folder
            folder = self.files / f"{index // 80:02}"
            folder.mkdir(exist_ok=True)
            (folder / f"{index}.txt").write_text("A text that is long enough to be named.")
        self.start(str(self.files), server=["--reply", "Offered"])
        self.focus()
        self.wait_for_count(f"/{count}")
        self.press("Suggest Names")
        self.wait_for_count(f"{count}/{count}")
        self.press("Rename All")
        until(lambda: list(self.files.rglob("Offered*")), "a first rename")
        self.keys("ctrl+q")
        self.assertEqual(self.window.wait(PATIENCE), 0)
        self.window = None
        names = [path.name for path in self.files.rglob("*.txt")]
        renamed = [name for name in names if name.startswith("Offered")]
        self.assertEqual(len(names), count)
        self.assertEqual(len(self.terminal("history", "--json").splitlines()), len(renamed))


if __name__ == "__main__":
    main()
