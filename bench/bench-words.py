#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""How many words of a scan are read right.

Run as: bench-words.py [--keep FOLDER] COMMAND...
COMMAND is what prints the text of the file whose path is added to it: "build/release/bench/read-pdf" or "varlo extract".

The texts of words/ are set by two programs (LibreOffice, and Pango with another typeface), each clean, noisy and two
degrees askew, and in fine print. A word is right when it comes out to the letter, its punctuation included, in its place.
Exits with 1 where fewer than 98.5 % of a page's words are.
"""
import argparse
import contextlib
import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

import scans

TARGET = 98.5
BODY, FINE = 11, 7  # points
RENDERERS = {"LibreOffice": scans.set_by_libreoffice, "Pango": scans.set_by_pango}
CONDITIONS = {
    "clean": (BODY, lambda page: page),
    "noisy, 2 degrees": (BODY, scans.scan_badly),
    "fine print": (FINE, lambda page: page),
}


def share_right(text, recognized):
    expected, read = text.split(), recognized.split()
    blocks = difflib.SequenceMatcher(None, expected, read, autojunk=False).get_matching_blocks()
    return 100 * sum(block.size for block in blocks) / len(expected)


def wrong_words(text, recognized):
    lines = difflib.unified_diff(text.split(), recognized.split(), lineterm="", n=0)
    return [line for line in lines if not line.startswith(("---", "+++", "@@"))]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--keep", metavar="FOLDER", help="keep the scans there")
    parser.add_argument("--show", action="store_true", help="show the words that differ")
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    environment = {**os.environ, "OMP_THREAD_LIMIT": "1"}
    missed = False
    print(f"{'':4}{'renderer':14}" + "".join(f"{name:>18}" for name in CONDITIONS))
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(arguments.keep or stack.enter_context(tempfile.TemporaryDirectory(prefix="bench-words.")))
        folder.mkdir(exist_ok=True)
        for language, text in scans.read_texts().items():
            for renderer, render in RENDERERS.items():
                shares, remarks = [], []
                for condition, (size, spoil) in CONDITIONS.items():
                    path = folder / f"{language}-{renderer}-{condition.replace(', ', '-').replace(' ', '-')}.pdf"
                    if not path.exists():
                        scans.write_scan([spoil(render(text, size, folder))], path)
                    result = subprocess.run([*arguments.command, path], capture_output=True, text=True, env=environment)
                    shares.append(share_right(text, result.stdout))
                    remarks += wrong_words(text, result.stdout)
                missed = missed or min(shares) < TARGET
                print(f"{language:4}{renderer:14}" + "".join(f"{share:>17.2f}%" for share in shares), flush=True)
                if arguments.show:
                    print("    " + "  ".join(remarks))
    print(f"target: {TARGET} % each")
    return 1 if missed else 0


sys.exit(main())
