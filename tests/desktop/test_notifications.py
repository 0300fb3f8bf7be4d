#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads and answers the command's notifications, as the desktop's service for them.

usage: test_notifications.py VARLO [unittest argument...]
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
import urllib.parse

import dbus
import dbusmock
import dbus.lowlevel
import dbus.mainloop.glib
from gi.repository import GLib

VARLO = os.path.abspath(sys.argv[1])
PATIENCE = 30
SERVICE = "org.freedesktop.Notifications"
INVOICE = """Acme Supplies Ltd
Invoice
Invoice date: 2025-03-01
Total due: 120.50 EUR
"""


def until(ask, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = ask()
        if answer:
            return answer
        time.sleep(0.02)
    raise AssertionError("never came: " + what)


class NotificationsTest(dbusmock.DBusTestCase):
    @classmethod
    def setUpClass(cls):
        cls.start_session_bus()
        cls.bus = cls.get_dbus(False)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.files = pathlib.Path(folder.name) / "files"
        self.files.mkdir()
        self.environment = dict(os.environ, HOME=folder.name)
        for name in ("CONFIG", "DATA", "STATE"):
            self.environment[f"XDG_{name}_HOME"] = os.path.join(folder.name, name)

    def start_desktop(self, capabilities="actions body body-markup"):
        server, self.desktop = self.spawn_server_template("notification_daemon", {"capabilities": capabilities})
        self.stop_at_end(server)

    def stop_at_end(self, process):
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)

    def write(self, name, text=INVOICE):
        path = os.path.join(os.fsencode(self.files), os.fsencode(name))
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def names(self):
        return sorted(os.listdir(os.fsencode(self.files)))

    def varlo(self, *arguments):
        process = subprocess.Popen([VARLO, *arguments], env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.stderr.close)
        self.stop_at_end(process)
        return process

    def calls(self, method="Notify"):
        return [call[1] for call in self.desktop.GetMethodCalls(method, dbus_interface=dbusmock.MOCK_IFACE)]

    def notification(self, count):
        """The call with this number: id that it replaces, title, text, actions."""
        call = until(lambda: len(self.calls()) >= count and self.calls()[count - 1], f"notification {count}")
        return int(call[1]), str(call[3]), str(call[4]), [str(word) for word in call[5]]

    def emit(self, name, signature, *arguments):
        self.desktop.EmitSignal(SERVICE, name, signature, list(arguments), dbus_interface=dbusmock.MOCK_IFACE)

    def shown_id(self):
        """The service counts its notifications from one."""
        return dbus.UInt32(len([call for call in self.calls() if call[1] == 0]))

    def choose(self, action):
        self.emit("ActivationToken", "us", self.shown_id(), "token-1")
        self.emit("ActionInvoked", "us", self.shown_id(), action)

    def rename(self, *arguments):
        return self.varlo("rename", "--yes", "--notify", "--offline", *arguments, "--", str(self.files))

    def test_undo_takes_back_these_renames_and_no_others(self):
        self.start_desktop()
        self.write("scan1.txt")
        self.write("scan2.txt")
        process = self.rename()
        replaced, title, text, actions = self.notification(1)
        self.assertEqual((replaced, title, actions), (0, "2 files renamed", ["undo", "Undo"]))
        self.assertIn("2025-03-01", text)
        self.write("later.txt", INVOICE.replace("Acme", "Umbra"))
        subprocess.run([VARLO, "rename", "--yes", "--offline", self.files / "later.txt"], env=self.environment, check=True,
                       capture_output=True)
        self.choose("undo")
        self.assertEqual(process.wait(PATIENCE), 0)
        self.assertEqual(self.notification(2)[1], "2 renames taken back")
        names = self.names()
        self.assertEqual([names[0][:10], *names[1:]], [b"2025-03-01", b"scan1.txt", b"scan2.txt"])

    def test_closed_means_that_the_renames_stand(self):
        self.start_desktop()
        self.write("scan1.txt")
        process = self.rename()
        self.assertEqual(self.notification(1)[1], "1 file renamed")
        self.emit("ActionInvoked", "us", dbus.UInt32(self.shown_id() + 1), "undo")  # somebody else's
        self.emit("NotificationClosed", "uu", self.shown_id(), dbus.UInt32(2))
        self.assertEqual(process.wait(PATIENCE), 0)
        self.assertTrue(self.names()[0].startswith(b"2025"))

    def test_failures_are_told_where_nobody_reads_a_terminal(self):
        self.start_desktop()
        self.write("scan1.txt")
        process = self.varlo("rename", "--yes", "--notify", str(self.files))
        self.assertEqual(process.wait(PATIENCE), 1)
        replaced, title, text, actions = self.notification(1)
        self.assertEqual((title, actions), ("No file was renamed", []))
        self.assertIn("No API key set.", text)
        process = self.varlo("rename", "--yes", "--notify", "--endpoint", "http://192.0.2.1", str(self.files))
        self.assertEqual(process.wait(PATIENCE), 2)
        self.assertEqual(self.notification(2)[1], "No file was renamed")

    def test_names_are_text_and_not_markup(self):
        for capabilities, written in (("actions body body-markup", "fish &amp; chips"), ("actions body", "fish & chips")):
            with self.subTest(capabilities):
                self.start_desktop(capabilities)
                self.write("a.html", "<html><head><title>Minutes on fish &amp; chips</title></head>"
                                     "<body>The meeting was held in June.</body></html>")
                process = self.rename()
                text = self.notification(1)[2]
                self.assertIn(written, text)
                self.emit("NotificationClosed", "uu", self.shown_id(), dbus.UInt32(2))
                process.wait(PATIENCE)
                self.doCleanups()
                self.setUp()

    def test_without_buttons_there_is_no_undo_to_wait_for(self):
        self.start_desktop("body")
        self.write("scan1.txt")
        process = self.rename()
        self.assertEqual(self.notification(1)[3], [])
        self.emit("NotificationClosed", "uu", self.shown_id(), dbus.UInt32(1))
        self.assertEqual(process.wait(PATIENCE), 0)

    def test_renames_go_on_without_a_desktop(self):
        self.write("scan1.txt")
        self.assertEqual(self.rename().wait(PATIENCE), 0)  # a bus, and nobody on it to show anything
        self.assertTrue(self.names()[0].startswith(b"2025"))
        self.write("scan2.txt", INVOICE.replace("Acme", "Umbra"))
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
        process = self.rename()
        self.assertEqual(process.wait(PATIENCE), 0)
        self.assertIn("no notifications", process.stderr.read())

    def test_desktop_that_goes_away_ends_the_wait(self):
        self.start_desktop()
        self.write("scan1.txt")
        process = self.rename()
        self.notification(1)
        bus = self.bus.get_object("org.freedesktop.DBus", "/org/freedesktop/DBus")
        os.kill(bus.GetConnectionUnixProcessID(SERVICE, dbus_interface="org.freedesktop.DBus"), signal.SIGKILL)
        self.assertEqual(process.wait(PATIENCE), 0)

    def start_window(self):
        server = self.spawn_server("com.varlo.Varlo", "/com/varlo/Varlo", "org.freedesktop.Application")
        self.stop_at_end(server)
        window = self.bus.get_object("com.varlo.Varlo", "/com/varlo/Varlo")
        window.AddMethod("", "Open", "asa{sv}", "", "", dbus_interface=dbusmock.MOCK_IFACE)
        return window

    def test_watch_tells_of_names_once_and_opens_the_window_with_them(self):
        self.start_desktop()
        window = self.start_window()
        paths = [self.write(name) for name in (b"caf\xe9.txt", b"line\nbreak.txt", b"scan1.txt")]
        self.write("empty.txt", "")
        self.varlo("watch", "--notify", "--offline", "--include-existing", str(self.files))
        replaced, title, text, actions = self.notification(1)
        self.assertEqual((replaced, title), (0, "3 names ready"))
        self.assertEqual(actions[::2], ["default", "review"])
        self.assertEqual(text.count("2025-03-01"), 3)
        self.choose("review")

        def opened():
            return window.GetMethodCalls("Open", dbus_interface=dbusmock.MOCK_IFACE)
        uris, platform_data = until(opened, "a call of the window")[0][1]
        self.assertEqual(sorted(urllib.parse.unquote_to_bytes(str(uri)) for uri in uris),
                         sorted(b"file://" + path for path in paths))
        self.assertEqual(platform_data["activation-token"], "token-1")
        entries = json.loads(platform_data["com.varlo.suggestions"])
        inodes = [os.stat(urllib.parse.unquote_to_bytes(str(uri))[len("file://"):]).st_ino for uri in uris]
        self.assertEqual([int(entry["inode"]) for entry in entries], inodes)
        for entry in entries:
            self.assertIn(entry["name"], text)
        self.emit("NotificationClosed", "uu", self.shown_id(), dbus.UInt32(2))

        # What was looked at is not told again; what is not is told in one notification that grows.
        self.write("scan4.txt")
        self.assertEqual(self.notification(2)[:2], (0, "1 name ready"))
        self.write("scan5.txt")
        self.assertEqual(self.notification(3)[:2], (self.shown_id(), "2 names ready"))

    def test_names_reach_a_window_that_the_bus_cannot_start(self):
        self.start_desktop()
        path = self.write("scan1.txt")
        self.environment["QT_QPA_PLATFORM"] = "none"  # the window that the command starts ends and says so
        process = self.varlo("watch", "--notify", "--offline", "--include-existing", str(self.files))
        text = self.notification(1)[2]
        self.choose("review")
        until(lambda: "qt.qpa.plugin" in process.stderr.readline(), "a window of the command")
        late = dbus.bus.BusConnection(os.environ["DBUS_SESSION_BUS_ADDRESS"],
                                      mainloop=dbus.mainloop.glib.DBusGMainLoop())
        self.addCleanup(late.close)
        opened = []

        def take(_, message):
            if message.get_member() == "Open":
                opened.append(message.get_args_list())
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        late.add_message_filter(take)
        late.request_name("com.varlo.Varlo")
        uris, platform_data = until(lambda: (GLib.MainContext.default().iteration(False), opened)[1], "a second call")[0]
        self.assertEqual([urllib.parse.unquote_to_bytes(str(uri)) for uri in uris], [b"file://" + path])
        self.assertIn(json.loads(platform_data["com.varlo.suggestions"])[0]["name"], text)
        self.assertEqual(platform_data["activation-token"], "token-1")

    def test_watch_tells_why_there_are_no_names(self):
        self.start_desktop()
        self.write("scan1.txt")
        self.varlo("watch", "--notify", "--include-existing", str(self.files))
        _, title, text, actions = self.notification(1)
        self.assertEqual((title, text, actions), ("No name for 1 file", "No API key set.", []))


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
