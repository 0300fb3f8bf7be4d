#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What taking one rename back costs the processor, as a whole `varlo undo`, beside `varlo formats`, which only prints.

Run as: bench-undo.py [--pairs N] VARLO
Exits with 1 where the target is missed.
"""
import argparse
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile

TARGET, BATCH = 2.0, 20  # one start is too short to be told from noise


def cpu_seconds(command, environment):
    before = os.times()
    for _ in range(BATCH):
        subprocess.run(command, env=environment, stdout=subprocess.DEVNULL, check=True)
    after = os.times()
    return after.children_user + after.children_system - before.children_user - before.children_system


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=15)
    parser.add_argument("varlo")
    arguments = parser.parse_args()
    ratios = []
    with tempfile.TemporaryDirectory(prefix="bench-undo.") as root:
        files = pathlib.Path(root, "files")
        files.mkdir()
        for number in range(BATCH):
            (files / f"scan_{number:02}.txt").write_text(f"Letter number {number} about the meeting of next week.")
        before = sorted(files.iterdir())
        environment = dict(os.environ, XDG_CONFIG_HOME=root, XDG_STATE_HOME=root)
        for pair in range(arguments.pairs):
            subprocess.run([arguments.varlo, "history", "clear", "--yes"], env=environment, check=True)
            subprocess.run([arguments.varlo, "rename", "--offline", "--yes", files], env=environment, check=True,
                           capture_output=True)
            assert not set(before) & set(files.iterdir()), "nothing to take back"
            seconds = {}
            for word in ("undo", "formats") if pair % 2 else ("formats", "undo"):
                seconds[word] = cpu_seconds([arguments.varlo, word], environment)
            assert sorted(files.iterdir()) == before, "not everything was taken back"
            ratios.append(seconds["undo"] / seconds["formats"])
    ratio = statistics.median(ratios)
    print(f"undo: {ratio:.2f} times the CPU time of `varlo formats` (target {TARGET})")
    return 1 if ratio > TARGET else 0


sys.exit(main())
