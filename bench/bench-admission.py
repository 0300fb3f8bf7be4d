#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What admitting a folder of 100,000 small files costs beside `find`, which reads their sizes too.

Run as: bench-admission.py [--pairs N] build/release/bench/admit
Exits with 1 where a target is missed.
"""
import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile

CPU_TARGET, BYTES_TARGET, STALL_TARGET_MS = 2.0, 1536, 100


def cpu_seconds(command):
    process = subprocess.Popen(command, stdout=subprocess.PIPE)
    output = process.stdout.read()
    _, _, usage = os.wait4(process.pid, 0)
    process.returncode = 0
    return usage.ru_utime + usage.ru_stime, output.decode(errors="replace")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=11)
    parser.add_argument("admit")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="bench-admission.") as root:
        for folder in range(1000):
            path = os.path.join(root, f"folder {folder:04}")
            os.mkdir(path)
            for file in range(100):
                with open(os.path.join(path, f"scan_{file:04}.txt"), "w", encoding="ascii") as text:
                    text.write("small")
        ours, theirs = [arguments.admit, root], ["find", root, "-type", "f", "-printf", "%s\n"]
        cpu_seconds(theirs)
        ratios, sizes, stalls = [], [], []
        for pair in range(arguments.pairs):
            seconds = {}
            for command in (ours, theirs) if pair % 2 else (theirs, ours):
                seconds[command[0]], output = cpu_seconds(command)
                if command is ours:
                    count, size, stall = map(int, re.findall(r"\d+", output))
            assert count == 100_000, output
            ratios.append(seconds[ours[0]] / seconds["find"])
            sizes.append(size)
            stalls.append(stall)
    ratio, size, stall = statistics.median(ratios), max(sizes), max(stalls)
    print(f"admission: {ratio:.2f} times find (target {CPU_TARGET}), {size} bytes a file (target {BYTES_TARGET}), "
          f"event loop still for at most {stall} ms (target {STALL_TARGET_MS})")
    return 1 if ratio > CPU_TARGET or size > BYTES_TARGET or stall > STALL_TARGET_MS else 0


sys.exit(main())
