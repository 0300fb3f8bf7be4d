#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What `varlo --version` costs beside an empty program that links Qt Core only.

Run as: bench-start.py [--pairs N] VARLO EMPTY
Exits with 1 where the target is missed.
"""
import argparse
import os
import statistics
import subprocess
import sys

TARGET = 1.8


def cpu_seconds(command):
    """Of a batch, as one start is too short to be told from noise."""
    before = os.times()
    for _ in range(20):
        subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    after = os.times()
    return after.children_user + after.children_system - before.children_user - before.children_system


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=15)
    parser.add_argument("varlo")
    parser.add_argument("empty")
    arguments = parser.parse_args()
    ours, theirs = [arguments.varlo, "--version"], [arguments.empty]
    ratios = []
    for pair in range(arguments.pairs):
        seconds = {}
        for command in (ours, theirs) if pair % 2 else (theirs, ours):
            seconds[command[0]] = cpu_seconds(command)
        ratios.append(seconds[ours[0]] / seconds[theirs[0]])
    ratio = statistics.median(ratios)
    print(f"start: {ratio:.2f} times an empty Qt Core program (target {TARGET})")
    return 1 if ratio > TARGET else 0


sys.exit(main())
