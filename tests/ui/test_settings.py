#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the settings, the key sheet and the template editor of the real window.

usage: test_settings.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]
"""
import base64
import json
import os
import subprocess

from window_driver import Atspi, WindowTest, below, has_state, main, until

from gi.repository import Gio, GLib

KEY = "sk-ant-73f1c0de9abc"
SECRETS = "org.freedesktop.secrets"
TABS = ["Language", "Templates", "Folders", "Tags", "Watch Folder", "About"]


class SettingsTest(WindowTest):
    def open_settings(self, tab=None):
        self.click(self.find("Settings", "push button"))
        self.find("Settings", "dialog")
        if tab:
            self.press(tab, role="page tab")
            self.wait_for_tab(tab)

    def wait_for_tab(self, name):
        until(lambda: has_state(self.find(name, "page tab"), Atspi.StateType.SELECTED), name)

    def wait_for_preference(self, key, value):
        until(lambda: self.preferences().get(key) == value, f"{key} {value}, not {self.preferences().get(key)}")

    def is_checked(self, name, role="check box"):
        return has_state(self.find(name, role), Atspi.StateType.CHECKED)

    def templates(self):
        stored = self.preferences().get("templates")
        return json.loads(base64.b64decode(stored)) if stored else []

    def wait_for_fields(self, *fields):
        until(lambda: self.templates() and self.templates()[-1]["fields"] == list(fields),
              f"{fields}, not {self.templates()}")

    def test_each_pane_is_bound_to_its_preferences(self):
        self.start()
        self.open_settings()
        self.wait_for_tab("Language")  # where nothing was chosen before
        self.click(self.find("Español", "radio button"))
        self.wait_for_preference("uiLanguage", "es")
        self.click(self.find("English", "radio button"))
        self.wait_for_preference("uiLanguage", "en")
        switches = {"Tags": {"Add Finder tags to renamed files": "writeFinderTags"},
                    "Watch Folder": {"Suggest names for new files automatically": "watchFolderEnabled",
                                     "Also include files already in this folder": "watchFolderIncludeExisting"}}
        for tab, names in switches.items():
            self.click(self.find(tab, "page tab"))
            for name, key in names.items():
                self.click(self.find(name, "check box"))
                self.wait_for_preference(key, True)
                self.press(name, role="check box")
                self.wait_for_preference(key, False)
                self.terminal("config", "set", key, "true")  # another Varlo's change
                until(lambda: self.is_checked(name), name)
        self.wait_for_preference("settingsSelectedTab", "watch")
        self.press("Close", within="Settings")
        self.wait_for_none("Settings", "dialog")
        self.open_settings()
        self.wait_for_tab("Watch Folder")  # the last one
        self.press("Language", role="page tab")
        self.terminal("config", "set", "uiLanguage", "system")
        until(lambda: self.is_checked("System", "radio button"), "another Varlo's language")

    def test_a_setting_that_cannot_be_stored_goes_back(self):
        self.set_preferences(hasCompletedOnboarding=True, settingsSelectedTab="tags")
        self.start()
        self.open_settings()
        self.find("Add Finder tags to renamed files", "check box")
        lock = self.preferences_file.with_name("preferences.json.lock")
        lock.unlink(missing_ok=True)
        lock.mkdir()
        self.press("Add Finder tags to renamed files", role="check box")
        until(lambda: [node for node in below(self.frame) if node.get_role_name() == "alert"
                       and node.get_name().startswith("The setting could not be stored: ")], "the reason")
        self.assertFalse(self.is_checked("Add Finder tags to renamed files"))
        lock.rmdir()
        self.press("Add Finder tags to renamed files", role="check box")
        self.wait_for_preference("writeFinderTags", True)
        until(lambda: not [node for node in below(self.frame) if node.get_role_name() == "alert"], "no reason any more")

    def test_folders_are_allowed_and_forgotten(self):
        scans = self.home / "Downloads/Scans"  # Qt's own chooser begins with the first folder
        scans.mkdir(parents=True)
        self.start()
        self.focus()
        self.open_settings("Folders")
        self.find("No folders allowed yet.")
        self.press("Add Folder…")
        self.click(self.find("Allow", "push button"))
        self.find("~/Downloads/Scans")
        self.assertEqual(list(self.preferences()["folderBookmarks"]), [str(scans)])
        other = self.home / "another"
        other.mkdir()
        self.terminal("folders", "add", str(other))
        self.find("~/another")
        until(lambda: [node.get_name() for node in below(self.frame) if node.get_name().startswith("~/")
                       and node.get_role_name() == "label"] == ["~/Downloads/Scans", "~/another"], "both, in order")
        for _ in range(2):
            self.press("Remove")
        self.find("No folders allowed yet.")
        self.assertEqual(self.preferences()["folderBookmarks"], {})
        self.press("Watch Folder", role="page tab")
        self.press("Choose Folder…")
        self.click(self.find("Choose", "push button"))
        self.wait_for_preference("watchFolderPath", str(scans))
        self.find("~/Downloads/Scans")
        self.assertEqual(list(self.preferences()["folderBookmarks"]), [str(scans)])
        self.press("Suggest names for new files automatically", role="check box")
        self.find("Scans is being watched Active")

    def test_addresses_open_outside(self):
        opened = self.start_with_opener()
        self.open_settings("About")
        self.click(self.find("Website", "label"))  # the whole row is the link
        self.press("Contact support")
        self.press("Documentation")
        until(lambda: len(opened.read_text().splitlines()) == 3, "three addresses")
        self.assertEqual(len({line for line in opened.read_text().splitlines()}), 3)
        self.assertIn("mailto:", opened.read_text())
        self.press("View List")
        self.find(".heic")
        self.press("Close", within="Supported formats")
        self.wait_for_none("Supported formats", "dialog")
        self.find("Settings", "dialog")

    def test_every_tab_has_names_and_buttons_that_do_something(self):
        self.start()
        self.focus()
        self.keys("F6")
        self.open_settings()
        for number, tab in enumerate(TABS, 1):
            self.keys(f"ctrl+{number}")
            self.wait_for_tab(tab)
            self.wait_for_focus(tab)
            self.check_names()
        self.keys("ctrl+Tab")
        self.wait_for_tab("Language")
        self.keys("ctrl+shift+Tab")
        self.wait_for_tab("About")
        self.keys("Up", "Up")
        self.wait_for_tab("Tags")
        self.keys("Tab")
        self.wait_for_focus("Close")
        self.keys("Tab", "space")
        self.wait_for_preference("writeFinderTags", True)
        self.keys("Escape")
        self.wait_for_none("Settings", "dialog")

    def test_template_is_edited_by_keyboard_alone(self):
        self.start()
        self.focus()
        self.keys("ctrl+comma")
        self.find("Settings", "dialog")
        self.keys("ctrl+2")
        self.wait_for_focus("Templates")
        self.tab_to("New Template…")
        self.keys("Return")
        self.wait_for_fields("date", "title")
        self.assertEqual(self.templates()[-1]["name"], "")
        self.wait_for_focus("Name")
        self.type("Client reports")
        until(lambda: self.templates()[-1]["name"] == "Client reports", "the name")
        self.tab_to("Add Field")
        self.keys("Return")
        self.wait_for_focus("Vendor")
        self.keys("Down", "Return")
        self.wait_for_fields("date", "title", "amount")
        self.find("2025-12-17 - Annual report - 174.24 EUR")
        self.tab_to("Amount")
        self.keys("alt+Left")
        self.wait_for_fields("date", "amount", "title")
        self.wait_for_focus("Amount")
        self.keys("alt+Left", "alt+Left")  # it cannot go further
        self.wait_for_fields("amount", "date", "title")
        self.keys("Delete")
        self.wait_for_fields("date", "title")
        self.wait_for_focus("Date")
        self.tab_to("Delete Template…")
        self.keys("Return")
        self.wait_for_focus("Cancel")
        self.keys("Escape")
        self.wait_for_none("Delete Template…", "dialog")
        self.tab_to("Templates")  # back to the list
        self.keys("shift+Tab", "shift+Tab", "Tab")
        self.press("Delete Template…")
        self.press("Delete", within="Delete Template…")
        self.find("New Template…")
        self.assertEqual([each["id"] for each in self.templates()], ["invoice", "receipt", "document", "contract"])

    def test_template_is_edited_by_mouse_and_elsewhere(self):
        self.start()
        self.click(self.find("Choose template"))
        pencil = until(lambda: [node for node in self.nodes("Invoice") if node.get_description() == "Templates"], "it")
        self.click(pencil[0])
        self.find("Settings", "dialog")
        self.wait_for_tab("Templates")
        self.press("Invoice", within="Settings")
        self.find("Date", "push button")
        self.assertEqual(self.nodes("Delete Template…"), [])  # it is built in
        last = self.place(self.find("Amount", "push button"))
        self.drag(self.find("Date", "push button"), last.x + last.width - 4, last.y + last.height // 2)
        until(lambda: self.templates() and self.templates()[0]["fields"] == ["vendor", "amount", "date"], "date last")
        first = self.place(self.find("Vendor", "push button"))
        self.drag(self.find("Date", "push button"), first.x + 2, first.y + first.height // 2)
        until(lambda: self.templates()[0]["fields"] == ["date", "vendor", "amount"], "date first")
        self.click(self.find("Remove Field", "push button"))
        until(lambda: self.templates()[0]["fields"] == ["vendor", "amount"], "no date")
        self.find("Squarespace - 174.24 EUR")
        self.press("Close", within="Settings")
        self.click(self.find("Choose template"))
        self.press("New Template…")
        self.find("Name", "text")
        self.terminal("templates", "remove", self.templates()[-1]["id"])
        self.find("2025-12-17 - Squarespace - 174.24 EUR")  # there is nothing else to show


class KeyTest(WindowTest):
    """The key sheet over a real keyring, and without one."""

    def setUp(self):
        super().setUp()
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.address = self.serve("--reply", "Offered")
        self.set_preferences(hasCompletedOnboarding=True, endpoint=self.address)

    def ask_bus(self, call, form, *arguments):
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", call,
                                  GLib.Variant(form, arguments), None, Gio.DBusCallFlags.NONE, -1).unpack()[0]

    def start_keyring(self):
        environment = os.environ | {"HOME": str(self.home), "XDG_DATA_HOME": str(self.home / "keyring")}
        keyring = subprocess.Popen(["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"],
                                   env=environment, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(keyring.wait)
        self.addCleanup(keyring.kill)
        keyring.stdin.write(b"password")
        keyring.stdin.close()
        until(lambda: self.ask_bus("NameHasOwner", "(s)", SECRETS), "the keyring")

    def start_without_keyring(self):
        """Who has the keyring's name knows none of its calls."""
        self.assertEqual(self.ask_bus("RequestName", "(su)", SECRETS, 0), 1)
        self.addCleanup(self.ask_bus, "ReleaseName", "(s)", SECRETS)
        self.start(server=None)

    def wait_for_secret_field(self, label):
        """Which has the keyboard when the sheet opens."""
        return until(lambda: [node for node in below(self.frame) if node.get_role_name() == "password text"
                              and node.get_description() == label and has_state(node, Atspi.StateType.FOCUSED)], label)

    def shown(self):
        """All that assistive technology is told."""
        for node in [self.frame, *below(self.frame)]:
            text = node.get_text_iface()
            yield node.get_name() + node.get_description() + (Atspi.Text.get_text(text, 0, -1) if text else "")

    def files_with_key(self):
        """Where the key can be read outside the window's memory."""
        places = [place for place in self.home.rglob("*") if place.is_file()]
        places += [f"/proc/{self.window.pid}/{part}" for part in ("cmdline", "environ")]
        self.stderr.flush()
        found = [str(place) for place in places if KEY.encode() in open(place, "rb").read()]
        return found + [self.stderr.name] * (KEY in open(self.stderr.name, encoding="utf-8").read())

    def test_key_is_saved_used_removed_and_never_shown(self):
        self.start_keyring()
        self.start(self.write("a.txt"), self.write("empty.txt", ""), server=None)
        self.focus()
        self.wait_for_row("a.txt", "Pending")
        self.press("Suggest Names")
        self.wait_for_row("empty.txt", "No text found")
        self.find("No API key set.", "alert")
        self.click(self.find("Use your own provider", "push button"))
        self.find("Use your own provider", "dialog")
        self.wait_for_secret_field("API key")
        self.check_names()
        self.keys("space", "space")
        self.click(self.find("Save", "push button"))  # nothing to save
        self.wait_for_secret_field("API key")
        self.type(KEY + " ")
        self.assertFalse([text for text in self.shown() if KEY in text or KEY[3:] in text])
        self.keys("Return")
        self.wait_for_none("Use your own provider", "dialog")
        self.wait_for_none("No API key set.", "alert")
        self.wait_for_row("a.txt", "Pending")  # to be asked again, at a press
        self.press("Suggest Names")
        self.wait_for_row("a.txt", "Suggested", "Offered.txt")
        self.assertIn("A key is stored", self.terminal("key", "status"))

        self.press("Settings")
        self.press("About", role="page tab")
        self.find("Your own key is in use.")
        self.press("Use your own provider", within="Settings")
        self.wait_for_secret_field("New API key")
        self.press("Test")
        self.find("The model answers. It suggested “Offered”.", "alert")
        self.assertFalse([text for text in self.shown() if KEY in text])
        self.assertEqual(self.files_with_key(), [])
        self.press("Remove Key")
        self.wait_for_none("Use your own provider", "dialog")
        self.find("No API key set.", within=self.find("Settings", "dialog"))
        with self.assertRaises(subprocess.CalledProcessError):
            self.terminal("key", "status")
        self.assertEqual(set(self.preferences()), {"hasCompletedOnboarding", "endpoint", "settingsSelectedTab"})

    def test_key_goes_with_its_server(self):
        other = self.serve("--status", "500")
        self.start_without_keyring()
        self.focus()
        self.keys("ctrl+comma", "ctrl+6")
        self.press("Use your own provider")
        self.wait_for_secret_field("API key")
        self.type(KEY)
        self.press("Save")
        self.wait_for_none("Use your own provider", "dialog")
        secret = self.home / "data/varlo/secrets/keys.json"
        self.assertEqual(self.files_with_key(), [str(secret)])  # the one place where there is no keyring
        self.assertEqual(secret.stat().st_mode & 0o777, 0o600)

        self.press("Use your own provider")
        self.find("Your own key is in use.", within=self.find("Use your own provider", "dialog"))
        self.tab_to("Server address")
        self.keys("ctrl+a")
        self.type("http://example.org")
        self.press("Test")
        self.find("http:// is accepted for this computer only. Use https:// for any other.", "alert")
        self.press("Apply")
        self.assertEqual(self.preferences()["endpoint"], self.address)
        self.keys("ctrl+a")
        self.type(other)
        self.press("Test")
        self.find("No API key set.", "alert")  # its own one was never saved
        self.assertEqual(self.preferences()["endpoint"], self.address)
        self.tab_to("AI model")
        self.type("some-model")
        self.press("Apply")
        until(lambda: self.preferences().get("endpoint") == other, "the other server")
        self.assertEqual(self.preferences()["model"], "some-model")
        until(lambda: [node for node in below(self.frame) if node.get_description() == "API key"], "no key of its own")
        self.press("Cancel")
        self.terminal("config", "set", "endpoint", self.address)
        self.press("Use your own provider")
        self.wait_for_secret_field("New API key")

    def test_a_save_that_fails_keeps_what_was_typed(self):
        (self.home / "data/varlo").mkdir(parents=True)
        (self.home / "data/varlo/secrets").touch()  # where a folder has to be
        self.start_without_keyring()
        self.focus()
        self.keys("ctrl+comma", "ctrl+6")
        self.press("Use your own provider")
        self.wait_for_secret_field("API key")
        self.type(KEY)
        self.tab_to("Save")
        self.keys("Return")
        self.wait_for_secret_field("API key")  # again
        self.find("No API key set.", within=self.find("Settings", "dialog"))
        (self.home / "data/varlo/secrets").unlink()
        self.press("Save")
        self.wait_for_none("Use your own provider", "dialog")
        self.find("Your own key is in use.")


class OnboardingTest(WindowTest):
    def test_first_start_by_keyboard_alone(self):
        self.set_preferences()
        self.start(self.write("a.txt"))
        self.focus()
        self.find("Welcome to Varlo")
        self.check_names()
        self.assertEqual([node.get_name() for node in below(self.frame) if node.get_role_name() == "push button"],
                         ["Get Started"])
        self.keys("ctrl+comma")  # there is nothing yet that could be set
        self.wait_for_focus("Get Started")
        self.keys("Return")
        self.find("Varlo is ready")
        self.stop()
        self.assertFalse(self.preferences().get("hasCompletedOnboarding", False))
        self.start(self.write("a.txt"))
        self.press("Get Started")
        self.click(self.find("Start renaming", "push button"))
        self.wait_for_row("a.txt", "Pending")
        until(lambda: self.preferences() == {"hasCompletedOnboarding": True}, "nothing more than that")
        self.assertEqual(self.nodes("Settings", "dialog"), [])
        self.stop()
        self.start()
        self.find("Drop your files here")


if __name__ == "__main__":
    main()
