#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads the Flatpak manifest, which cannot be built everywhere.

usage: test_flatpak.py [unittest argument...]
"""
import pathlib
import re
import unittest

import yaml

TOP = pathlib.Path(__file__).resolve().parents[2]


class FlatpakTest(unittest.TestCase):
    def setUp(self):
        self.manifest = yaml.safe_load((TOP / "flatpak/com.varlo.Varlo.yaml").read_text(encoding="utf-8"))

    def test_every_permission_is_explained_and_no_other(self):
        page = (TOP / "docs/flatpak.md").read_text(encoding="utf-8")
        rows = [line.split("|")[1] for line in page.splitlines() if line.startswith("| `--")]
        self.assertEqual(sorted(re.findall("`(--[^`]+)`", " ".join(rows))), sorted(self.manifest["finish-args"]))

    def test_every_source_is_pinned_by_its_checksum(self):
        self.assertEqual(self.manifest["modules"][-1]["sources"], [{"type": "dir", "path": ".."}])
        for module in self.manifest["modules"][:-1]:
            for source in module["sources"]:
                self.assertEqual(source["type"], "archive", module["name"])
                self.assertRegex(source["url"], "^https://", module["name"])
                self.assertRegex(source["sha256"], "^[0-9a-f]{64}$", module["name"])
        names = [module["name"] for module in self.manifest["modules"]]
        self.assertEqual(len(set(names)), len(names))


if __name__ == "__main__":
    unittest.main()
