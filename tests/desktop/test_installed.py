#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Installs the build into a folder of its own and uses it there.

usage: test_installed.py BUILD [unittest argument...]
"""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import dbus
import dbusmock

BUILD = os.path.abspath(sys.argv[1])
SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples" / "inbox"
PATIENCE = 60


class InstalledTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.prefix = pathlib.Path(cls.folder.name) / "prefix"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix], check=True, stdout=subprocess.DEVNULL)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def varlo(self, *arguments, wrapper=()):
        return subprocess.run([*wrapper, self.prefix / "bin/varlo", *arguments], capture_output=True, timeout=120,
                              text=True)

    def test_every_part_is_where_others_look_for_it(self):
        installed = {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if not path.is_dir()}
        for path in (
                "bin/varlo", "bin/varlo-window", "libexec/varlo/varlo-extractor",
                "lib/systemd/user/varlo-watch@.service", "share/applications/com.varlo.Varlo.desktop",
                "share/bash-completion/completions/varlo", "share/caja-python/extensions/varlo.py",
                "share/dbus-1/services/com.varlo.Varlo.service", "share/fish/vendor_completions.d/varlo.fish",
                "share/icons/hicolor/16x16/apps/com.varlo.Varlo.png",
                "share/icons/hicolor/scalable/apps/com.varlo.Varlo.svg",
                "share/icons/hicolor/symbolic/apps/com.varlo.Varlo-symbolic.svg",
                "share/kio/servicemenus/com.varlo.Varlo.desktop", "share/man/man1/varlo.1",
                "share/man/man1/varlo-rename.1", "share/metainfo/com.varlo.Varlo.metainfo.xml",
                "share/mime/packages/com.varlo.Varlo.xml", "share/nautilus-python/extensions/varlo.py",
                "share/nemo/actions/varlo-rename.nemo_action", "share/nemo/actions/varlo-suggest.nemo_action",
                "share/thunarx-python/extensions/varlo.py", "share/zsh/vendor-completions/_varlo"):
            self.assertIn(path, installed)
        self.assertEqual([path for path in installed if "test" in path or "fake" in path or "describe" in path], [])

    def test_files_are_read_with_the_installed_parts_alone(self):
        trace = pathlib.Path(self.folder.name) / "trace"
        follow = ["strace", "-f", "-qq", "-e", "trace=open,openat,execve", "-o", trace]
        files = [SAMPLES / name for name in ("Scan_20240903.pdf", "IMG_4410.heic", "P1040388.jpeg", "Libro1.xlsx")]
        run = self.varlo("extract", "--json", *files, wrapper=follow)
        self.assertEqual([json.loads(line)["result"] for line in run.stdout.splitlines()], ["content"] * 4, run.stderr)
        with open(trace, encoding="utf-8", errors="replace") as calls:
            self.assertEqual([line for line in calls if f'"{BUILD}/' in line], [])

    def test_model_client_keyring_and_notifications_are_found(self):
        run = self.varlo("suggest", "--json", SAMPLES / "IMG_2291_ocr.txt")
        self.assertEqual(json.loads(run.stdout)["message"], "No API key set.")
        run = self.varlo("doctor", "--json")
        self.assertNotIn("Readers", [json.loads(line)["subject"] for line in run.stdout.splitlines()])
        modules = {path.name for path in self.prefix.glob("lib/**/varlo/*.so")}
        self.assertEqual(modules, {path.name for path in (pathlib.Path(BUILD) / "modules").glob("*.so")})

    def test_window_starts(self):
        window = subprocess.Popen([self.prefix / "bin/varlo"], stderr=subprocess.PIPE, text=True)
        try:
            end = time.monotonic() + PATIENCE
            while "libQt6Quick" not in pathlib.Path(f"/proc/{window.pid}/maps").read_text(encoding="utf-8"):
                self.assertIsNone(window.poll())
                self.assertLess(time.monotonic(), end)
                time.sleep(0.05)
        finally:
            window.terminate()
            _, complaints = window.communicate(timeout=PATIENCE)
        self.assertEqual(complaints, "")

    def test_notification_opens_the_window_where_the_bus_cannot_start_it(self):
        beside = pathlib.Path(self.folder.name) / "beside"
        shutil.copytree(self.prefix, beside, symlinks=True)
        record = pathlib.Path(self.folder.name) / "record"
        window = beside / "bin/varlo-window"
        window.unlink()
        window.write_text(f'#!/bin/sh\nprintf "%s\\0" "$@" > "{record}.new" && mv "{record}.new" "{record}"\n')
        window.chmod(0o755)
        files = pathlib.Path(self.folder.name) / "files"
        files.mkdir()
        path = os.path.join(os.fsencode(files), b"a b\xff.txt")
        shutil.copy(SAMPLES / "scan_0042.txt", path)

        dbusmock.DBusTestCase.start_session_bus()
        self.addCleanup(dbusmock.DBusTestCase.tearDownClass)
        server, desktop = dbusmock.DBusTestCase.spawn_server_template("notification_daemon", {"capabilities": "actions"})
        self.addCleanup(server.wait)
        self.addCleanup(server.kill)
        watch = subprocess.Popen([beside / "bin/varlo", "watch", "--offline", "--notify", "--include-existing", files],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(watch.wait)
        self.addCleanup(watch.kill)

        def calls():
            return desktop.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE)
        self.wait_for(calls)
        desktop.EmitSignal("org.freedesktop.Notifications", "ActionInvoked", "us", [dbus.UInt32(1), "review"],
                           dbus_interface=dbusmock.MOCK_IFACE)
        self.wait_for(record.exists)
        self.assertEqual(record.read_bytes().split(b"\0")[:-1][-1], path)

    def wait_for(self, condition):
        end = time.monotonic() + PATIENCE
        while not condition():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)


if __name__ == "__main__":
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
