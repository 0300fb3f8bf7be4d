# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where the hostile files go, and what may come of reading each."""
import base64
import json
import os
import shutil

NO_TEXT = "noTextFound"
CONTENT = "content"
NOT_REGULAR = "unreadable: This is not a regular file."
DIED = "unreadable: This file could not be read safely."
TOOK_TOO_LONG = "unreadable: Reading this file took too long."
# What would take all memory or time: refused, or given up with the worker that reads it.
EXHAUSTING = (NO_TEXT, DIED, TOOK_TOO_LONG)

SENTENCE = "A text that is long enough to be named."
SECRET = "The secret that no reader may ever fetch."


class HostileFiles:
    """Collects files below a folder, and a row of the manifest for each.

    address is where nobody may connect to; secret_path a file that no reader may open.
    """

    def __init__(self, folder, address):
        self.folder = os.fsencode(folder)
        self.address = address
        self.rows = []
        self.secret_path = os.path.join(folder, "secret")
        with open(self.secret_path, "w", encoding="utf-8") as file:
            file.write(SECRET)

    def path(self, name):
        return os.path.join(self.folder, os.fsencode(name))

    def write(self, name, content):
        """content: bytes, or an iterable of pieces; a piece that is a number is so many bytes never written."""
        with open(self.path(name), "wb") as file:
            for piece in [content] if isinstance(content, bytes) else content:
                if isinstance(piece, int):
                    file.truncate(file.tell() + piece)
                    file.seek(piece, os.SEEK_CUR)
                else:
                    file.write(piece)
        return self.path(name)

    def expect(self, name, *outcomes, text=None, absent=SECRET, lines=None, seconds=40, is_good=False):
        """Notes down what may come of reading a file, made by whoever calls.

        outcomes: results, an unreadable one with its message, or "unreadable" with any. text: what the content begins
        with. absent: what must not be in it. lines: how many lines its metadata may have. seconds: when to give up.
        """
        name = os.fsencode(name)
        self.rows.append({
            "name": base64.b64encode(name).decode(), "shown": name.decode(errors="backslashreplace"),
            "extension": name.rpartition(b".")[2].decode(errors="replace").lower(), "outcomes": outcomes, "text": text,
            "absent": absent, "metadataLines": lines, "seconds": seconds, "isGood": is_good})

    def add(self, name, content, *outcomes, **expected):
        self.write(name, content)
        self.expect(name, *outcomes, **expected)

    def write_manifest(self):
        with open(os.path.join(self.folder, b"manifest.json"), "w", encoding="utf-8") as file:
            json.dump(self.rows, file, indent=1)


def need(program):
    """The path of a program of packages/test.txt."""
    found = shutil.which(program)
    if not found:
        raise SystemExit(f"{program} is not installed")
    return found
