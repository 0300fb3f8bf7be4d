#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares what the desktop is told about Varlo with what Varlo does.

usage: test_desktop_files.py SHARE VARLO [unittest argument...]
"""
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SHARE = pathlib.Path(sys.argv[1]).resolve()
VARLO = os.path.abspath(sys.argv[2])
MIME = tempfile.TemporaryDirectory()
# The system's list of types with ours, as an installation has it.
PACKAGES = pathlib.Path(MIME.name) / "mime" / "packages"
PACKAGES.mkdir(parents=True)
for source in (pathlib.Path("/usr/share/mime/packages/freedesktop.org.xml"), SHARE / "mime/packages/com.varlo.Varlo.xml"):
    (PACKAGES / source.name).symlink_to(source)
subprocess.run(["update-mime-database", PACKAGES.parent], check=True)
os.environ["XDG_DATA_DIRS"] = MIME.name

from gi.repository import Gio, GLib  # noqa: E402

LANGUAGES = ["es", "nl"]


def key_files():
    for path in (SHARE / "applications/com.varlo.Varlo.desktop", SHARE / "kio/servicemenus/com.varlo.Varlo.desktop",
                 *sorted(SHARE.glob("nemo/actions/*.nemo_action"))):
        keys = GLib.KeyFile()
        keys.load_from_file(str(path), GLib.KeyFileFlags.KEEP_TRANSLATIONS)
        yield path, keys


def supported_extensions():
    lines = subprocess.run([VARLO, "formats"], check=True, capture_output=True, text=True).stdout
    kept = lines[:re.search("video", lines, re.IGNORECASE).start()]  # what is to come stands at the end
    return re.findall(r"\.([a-z]+)", kept)


class DesktopFilesTest(unittest.TestCase):
    def test_every_type_that_is_read_is_offered(self):
        extensions = supported_extensions()
        self.assertEqual(len(extensions), 38)
        menus = {path: keys for path, keys in key_files()}
        for path, keys in menus.items():
            if path.suffix == ".desktop":
                taken = keys.get_string_list("Desktop Entry", "MimeType")
                for extension in extensions:
                    kind, _ = Gio.content_type_guess("a." + extension, None)
                    self.assertIn(kind, taken, f"{path}: .{extension}")
            else:
                self.assertEqual(set(keys.get_string_list("Nemo Action", "Extensions")),
                                 {"dir", *("." + extension for extension in extensions)})
        for path in SHARE.glob("*-python/extensions/varlo.py"):
            listed = re.search('EXTENSIONS = frozenset\\("(.*)"', path.read_text()).group(1)
            self.assertEqual(set(listed.split()), set(extensions), path)

    def test_a_folder_is_not_opened_with_varlo_by_default(self):
        _, keys = next(key_files())
        self.assertNotIn("inode/directory", keys.get_string_list("Desktop Entry", "MimeType"))

    def test_every_text_is_in_three_languages(self):
        for path, keys in key_files():
            for group in keys.get_groups()[0]:
                for key in keys.get_keys(group)[0]:
                    if key not in ("Name", "GenericName", "Comment", "Keywords") or keys.get_value(group, key) == "Varlo":
                        continue
                    texts = [keys.get_value(group, key)] + [keys.get_value(group, f"{key}[{language}]")
                                                            for language in LANGUAGES]
                    self.assertEqual(len(set(texts)), 3, f"{path}: {group}: {key}")
        text = ElementTree.parse(SHARE / "metainfo/com.varlo.Varlo.metainfo.xml").getroot()
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        for parent in text.iter():
            for name in ("p", "li", "caption", "summary"):
                counts = [len([child for child in parent.findall(name) if child.get(language) == wanted])
                          for wanted in (None, *LANGUAGES)]
                self.assertEqual(len(set(counts)), 1, f"{parent.tag}: {name}")

    def test_release_is_the_version(self):
        version = subprocess.run([VARLO, "--version"], check=True, capture_output=True, text=True).stdout.split()[1]
        root = ElementTree.parse(SHARE / "metainfo/com.varlo.Varlo.metainfo.xml").getroot()
        self.assertEqual(root.find("releases/release").get("version"), version)

    def test_icons_have_the_size_of_their_folder(self):
        found = sorted(SHARE.glob("icons/hicolor/*/apps/com.varlo.Varlo.png"))
        self.assertEqual(len(found), 5)
        for path in found:
            width, height = struct.unpack(">II", path.read_bytes()[16:24])
            self.assertEqual(f"{width}x{height}", path.parents[1].name)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
