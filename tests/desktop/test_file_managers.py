#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Chooses Varlo's entries in the menus of the file managers, for files with hostile names.

usage: test_file_managers.py SHARE [unittest argument...]

SHARE is the build's share folder. A program called varlo that only writes down its arguments stands in PATH. What GLib
does, GLib does here; the rules of KDE and Nemo are written down in the functions of their names.
"""
import configparser
import importlib.util
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import time
import types
import unittest

SHARE = pathlib.Path(sys.argv[1]).resolve()
FOLDER = tempfile.TemporaryDirectory()
HERE = pathlib.Path(FOLDER.name)
(HERE / "bin").mkdir()
# Before GLib looks at them.
os.environ["PATH"] = f"{HERE}/bin:" + os.environ["PATH"]
os.environ["XDG_DATA_DIRS"] = f"{SHARE}:/usr/share"
os.environ["RECORD"] = str(HERE / "record")
recorder = HERE / "bin" / "varlo"
recorder.write_text('#!/bin/sh\nprintf "%s\\0" "$@" > "$RECORD.new" && mv "$RECORD.new" "$RECORD"\n')
recorder.chmod(0o755)

import gi  # noqa: E402
from gi.repository import Gio, GLib, GObject  # noqa: E402

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from hostile_names import NAMES  # noqa: E402

PATIENCE = 30
SUGGEST = [b"open"]
SUGGEST_PLAINLY = [b"open", b"--"]
RENAME = [b"rename", b"--yes", b"--notify", b"--"]


def recorded():
    """The arguments that varlo was started with."""
    end = time.monotonic() + PATIENCE
    record = HERE / "record"
    while not record.exists():
        if time.monotonic() > end:
            raise AssertionError("varlo was not started")
        time.sleep(0.01)
    arguments = record.read_bytes().split(b"\0")[:-1]
    record.unlink()
    return arguments


def key_file(path):
    parser = configparser.RawConfigParser(delimiters="=", comment_prefixes="#", strict=True)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


class MenuItem(GObject.GObject):
    """Stands for the menu items of the managers, whose bindings would bring their whole window along."""
    __gsignals__ = {"activate": (GObject.SignalFlags.RUN_LAST, None, ())}
    name = GObject.Property(type=str)
    label = GObject.Property(type=str)
    icon = GObject.Property(type=str)


class File:
    def __init__(self, uri):
        self.get_uri = lambda: uri


class FileManagersTest(unittest.TestCase):
    def setUp(self):
        self.folder = os.fsencode(HERE / "files")
        os.makedirs(self.folder, exist_ok=True)
        self.paths = [os.path.join(self.folder, name) for name in NAMES]
        for path in self.paths:
            with open(path, "wb"):
                pass

    def test_desktop_entry(self):
        application = Gio.DesktopAppInfo.new_from_filename(str(SHARE / "applications/com.varlo.Varlo.desktop"))
        self.assertTrue(application.launch([Gio.File.new_for_path(path) for path in self.paths], None))
        self.assertEqual(recorded(), SUGGEST + self.paths)

    def extension(self, folder, module_name):
        module = types.ModuleType("gi.repository." + module_name)
        module.MenuItem = MenuItem
        module.MenuProvider = type("MenuProvider", (), {})
        sys.modules[module.__name__] = module
        setattr(gi.repository, module_name, module)
        path = SHARE / folder / "extensions" / "varlo.py"
        spec = importlib.util.spec_from_file_location("varlo_in_" + module_name, path)
        loaded = importlib.util.module_from_spec(spec)
        sys.dont_write_bytecode = True
        spec.loader.exec_module(loaded)
        return loaded.VarloMenu()

    def test_extensions_through_python(self):
        files = [File(GLib.filename_to_uri(os.fsdecode(path))) for path in self.paths]
        window = object()
        for folder, module_name, ask in (
                ("nautilus-python", "Nautilus", lambda menu, some: menu.get_file_items(some)),
                ("caja-python", "Caja", lambda menu, some: menu.get_file_items(window, some)),
                ("thunarx-python", "Thunarx", lambda menu, some: menu.get_file_menu_items(window, some))):
            with self.subTest(module_name):
                menu = self.extension(folder, module_name)
                suggest, rename = ask(menu, files)
                self.assertEqual((suggest.label, rename.label), ("Suggest Names with Varlo", "Rename with Varlo"))
                suggest.emit("activate")
                self.assertEqual(recorded(), SUGGEST + self.paths)
                rename.emit("activate")
                self.assertEqual(recorded(), RENAME + self.paths)
                for uri, why in (("sftp://host/a.txt", "not on this machine"), ("file:///a.mp4", "a type that is not read"),
                                 ("file:///a", "neither a type nor a folder")):
                    self.assertEqual(ask(menu, files + [File(uri)]), [], why)
                self.assertEqual(ask(menu, []), [])
                self.assertEqual(len(ask(menu, [File("file:///tmp"), File("file:///A.PDF")])), 2)

    def start_as_nemo(self, action):
        """Replaces %F by the paths in quotes, parted by spaces, and has GLib start the line."""
        self.assertEqual(action["Quote"], "single")
        quoted = b" ".join(b"'" + path.replace(b"'", b"'\\''") + b"'" for path in self.paths)
        GLib.spawn_command_line_async(action["Exec"].encode().replace(b"%F", quoted))

    def test_nemo_actions(self):
        for name, start in (("suggest", SUGGEST_PLAINLY), ("rename", RENAME)):
            action = key_file(SHARE / "nemo/actions" / f"varlo-{name}.nemo_action")["Nemo Action"]
            self.start_as_nemo(action)
            self.assertEqual(recorded(), start + self.paths)
            # Nemo compares ends of names, so "md" would be taken for part of ".cmd".
            kinds = action["Extensions"].rstrip(";").split(";")
            self.assertEqual([kind for kind in kinds if not kind.startswith(".")], ["dir"])

    def start_as_kde(self, line):
        """Names are text there, so what is not UTF-8 is lost; each becomes a word quoted for a shell, and the line is
        split as a shell would."""
        seen = [path.decode("utf-8", "replace") for path in self.paths]
        words = shlex.split(line.replace("%F", " ".join(shlex.quote(path) for path in seen)))
        subprocess.run(words, check=True)
        return [path.encode() for path in seen]

    def test_service_menu_of_kde(self):
        menu = key_file(SHARE / "kio/servicemenus/com.varlo.Varlo.desktop")
        self.assertEqual(menu["Desktop Entry"]["Actions"], "suggest;rename;")
        for name, start in (("suggest", SUGGEST_PLAINLY), ("rename", RENAME)):
            seen = self.start_as_kde(menu["Desktop Action " + name]["Exec"])
            self.assertEqual(recorded(), start + seen)
            # The name that KDE cannot say reaches no other file.
            strange = next(path for path in seen if "\ufffd".encode() in path)
            self.assertFalse(os.path.exists(strange))


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
