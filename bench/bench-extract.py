#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What reading a plain text costs beside `cat`.

Run as: bench-extract.py [--size MIB] [--pairs N] COMMAND...
COMMAND is what reads the file whose path is added to it: "varlo extract", or "extract-in-process extract".

Each file is read by both, one right after the other and in alternating order, so that whatever else the machine does
hits both alike. Printed is the median over the pairs of COMMAND's processor time divided by cat's, and COMMAND's peak
of resident memory over all runs (which is at least that of this script: what a process had before exec counts).
Exits with 1 where a target is missed.
"""
import argparse
import os
import statistics
import subprocess
import sys
import tempfile
import time

ASCII = b"The quick brown fox jumps over the lazy dog, 1234567890 times.\n"
MIXED = (
    "Zażółć gęślą jaźń. Съешь же ещё этих булок. Ξεσκεπάζω την ψυχοφθόρα. نص حكيم له سر. "
    "天地玄黄宇宙洪荒 日月盈昃辰宿列张 กขฃคฅ 대한민국 😀👩‍👩‍👧‍👦\n"
).encode()
PEAK_TARGET_MIB = 25


def write_text(path, line, size, spoil=None):
    block = line * (2**20 // len(line))
    with open(path, "wb") as file:
        while file.tell() < size:
            file.write(block)
        if spoil is not None:
            file.seek(spoil)
            file.write(b"\xff")


def run(command):
    """Processor seconds, wall seconds and peak resident MiB of a command."""
    start = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return usage.ru_utime + usage.ru_stime, time.monotonic() - start, usage.ru_maxrss / 1024


def compare(command, path, pairs):
    run(["cat", path])  # from here on the page cache has it
    ratios, peaks, ours, theirs = [], [], [], []
    for pair in range(pairs):
        runs = {}
        for name in ("ours", "cat") if pair % 2 else ("cat", "ours"):
            runs[name] = run([*command, path] if name == "ours" else ["cat", path])
        ratios.append(runs["ours"][0] / runs["cat"][0])
        ours.append(runs["ours"][0])
        theirs.append(runs["cat"][0])
        peaks.append(runs["ours"][2])
    return statistics.median(ratios), max(peaks), statistics.median(ours), statistics.median(theirs)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--size", type=int, default=1024, metavar="MIB")
    parser.add_argument("--pairs", type=int, default=11)
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    size = arguments.size * 2**20
    missed = False
    with tempfile.TemporaryDirectory(prefix="bench-extract.") as folder:
        path = os.path.join(folder, "text.txt")
        for name, line, target in (("ASCII", ASCII, 1.3), ("mixed", MIXED, 2.2)):
            write_text(path, line, size)
            ratio, peak, ours, theirs = compare(arguments.command, path, arguments.pairs)
            missed = missed or ratio > target or peak > PEAK_TARGET_MIB
            print(
                f"{name}: {ratio:.2f} times cat (target {target}), {ours:.3f} s beside {theirs:.3f} s; "
                f"peak {peak:.1f} MiB (target {PEAK_TARGET_MIB})",
                flush=True,
            )
        write_text(path, ASCII, size, spoil=1000)
        spoilt, whole = run([*arguments.command, path]), run(["cat", path])
        missed = missed or spoilt[1] > whole[1]
        print(f"wrong byte near the start: {spoilt[1]:.3f} s in all, cat {whole[1]:.3f} s")
    return 1 if missed else 0


sys.exit(main())
