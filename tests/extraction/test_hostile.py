#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads every hostile file with the real command, beside a good one: each costs its own result only.

usage: test_hostile.py VARLO [unittest argument...]
"""
import base64
import collections
import ctypes
import hashlib
import json
import os
import pathlib
import resource
import socket
import stat
import subprocess
import sys
import tempfile
import time
import unittest

VARLO = os.path.abspath(sys.argv[1])
WRITE_FILES = pathlib.Path(__file__).parent / "hostile" / "write-files"
# What Varlo reads so far.
READ = {"txt", "rtf", "docx", "xlsx", "pptx", "pdf", "ai", "jpg", "jpeg", "jpe", "png", "webp", "gif", "heic", "heif", "heics",
        "tiff", "tif", "bmp", "avif", "tga", "exr", "ico", "icns"}
# Beyond this a file is known by its size and times alone.
LARGEST_DIGESTED = 32 << 20


def state(path):
    """All that reading must leave as it was."""
    status = os.lstat(path)
    digest = None
    if stat.S_ISREG(status.st_mode) and status.st_blocks * 512 <= LARGEST_DIGESTED and status.st_size <= LARGEST_DIGESTED:
        with open(path, "rb") as file:
            digest = hashlib.file_digest(file, "sha256").hexdigest()
    attributes = {name: os.getxattr(path, name, follow_symlinks=False) for name in os.listxattr(path, follow_symlinks=False)}
    return (status.st_ino, status.st_mode, status.st_nlink, status.st_uid, status.st_size, status.st_mtime_ns, digest,
            attributes)


def processor_seconds():
    """Of every process that this one has waited for so far."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


class HostileFilesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="hostile.")
        cls.addClassCleanup(folder.cleanup)
        cls.listener = socket.create_server(("127.0.0.1", 0))
        cls.listener.setblocking(False)
        cls.addClassCleanup(cls.listener.close)
        cls.files = os.path.join(os.fsencode(folder.name), b"files")
        address = f"http://127.0.0.1:{cls.listener.getsockname()[1]}"
        subprocess.run([WRITE_FILES, cls.files, address], check=True, stdout=subprocess.DEVNULL)
        cls.home = os.path.join(folder.name, "home")
        cls.temporary = os.path.join(folder.name, "tmp")
        os.mkdir(cls.home)
        os.mkdir(cls.temporary)
        cls.environment = {"HOME": cls.home, "TMPDIR": cls.temporary, "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                cls.environment[name] = os.environ[name]
        with open(os.path.join(cls.files, b"manifest.json"), encoding="utf-8") as manifest:
            rows = [row for row in json.load(manifest) if row["extension"] in READ]
        for row in rows:
            row["path"] = os.path.join(cls.files, base64.b64decode(row["name"]))
        cls.rows = [row for row in rows if not row["isGood"]]
        cls.good = {row["extension"]: row for row in rows if row["isGood"]}
        # Whoever outlives the command becomes a child of this process.
        PR_SET_CHILD_SUBREAPER = 36
        if ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
            raise OSError(ctypes.get_errno(), "prctl")

    def extract(self, rows):
        """The answers by path; each is one line of JSON, and nobody else says anything. What it may take is processor
        time: on a busy machine wall time says only that there is an end."""
        seconds, spent = sum(row["seconds"] for row in rows), processor_seconds()
        run = subprocess.run([VARLO, "extract", "--json", "--", *(row["path"] for row in rows)], env=self.environment,
                             cwd=self.files, capture_output=True, timeout=10 * seconds)
        self.check_nothing_remains()
        self.assertLess(processor_seconds() - spent, seconds)
        self.assertIn(run.returncode, (0, 1), run.stderr[-2000:])
        self.assertEqual(run.stderr, b"")
        answers = collections.defaultdict(list)
        for line in run.stdout.splitlines():
            answer = json.loads(line)
            path = base64.b64decode(answer["pathBytes"]) if "pathBytes" in answer else answer["path"].encode()
            answers[path].append(answer)
        self.assertEqual(sorted(answers), sorted(row["path"] for row in rows))
        self.assertEqual({len(lines) for lines in answers.values()}, {1})
        return {path: lines[0] for path, lines in answers.items()}

    def check_answer(self, row, answer):
        said = answer["result"]
        allowed = row["outcomes"]
        if said == "unreadable":
            self.assertTrue(answer["message"])
            if "unreadable" not in allowed:
                said += ": " + answer["message"]
        self.assertIn(said, allowed)
        if said != "content":
            return
        if row["text"]:
            self.assertEqual(answer["text"][:len(row["text"])], row["text"])
        if row["metadataLines"] and "metadata" in answer:
            self.assertLessEqual(len(answer["metadata"].splitlines()), row["metadataLines"])
        self.assertNotIn(row["absent"], answer.get("text", ""))

    def check_nothing_remains(self):
        """No process, no temporary file, nothing in the home folder, and nobody has connected."""
        deadline = time.monotonic() + 30
        try:
            while os.waitpid(-1, os.WNOHANG) != (0, 0) or time.monotonic() < deadline:
                time.sleep(0.01)
            self.fail("a process goes on")
        except ChildProcessError:
            pass
        self.assertEqual(os.listdir(self.temporary), [])
        self.assertEqual([name for _, _, names in os.walk(self.home) for name in names], [])
        with self.assertRaises(BlockingIOError):
            self.listener.accept()

    def everything(self):
        return {name: state(os.path.join(self.files, name)) for name in os.listdir(self.files)}

    def test_each_beside_a_good_one(self):
        self.assertTrue(self.rows)
        for row in self.rows:
            with self.subTest(file=row["shown"]):
                good = self.good[row["extension"]] if row["extension"] in self.good else self.good["txt"]
                before, names = state(row["path"]), sorted(os.listdir(self.files))
                answers = self.extract([row, good])
                self.check_answer(row, answers[row["path"]])
                self.check_answer(good, answers[good["path"]])
                self.assertEqual(state(row["path"]), before)
                self.assertEqual(sorted(os.listdir(self.files)), names)

    def test_all_at_once(self):
        before = self.everything()
        rows = self.rows + list(self.good.values())
        answers = self.extract(rows)
        for row in rows:
            with self.subTest(file=row["shown"]):
                self.check_answer(row, answers[row["path"]])
        self.assertEqual(self.everything(), before)


unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
