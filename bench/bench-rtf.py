#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What reading rich text costs beside `catdoc`.

Run as: bench-rtf.py [--pairs N] COMMAND...
COMMAND is what reads the file whose path is added to it: "build/release/bench/extract-rtf" or "varlo extract".

LibreOffice writes a document of some 270 KB, which both read in batches, one right after the other and in alternating
order. Of each batch's processor time that of as many starts with a document of one sentence is taken off. Printed is
the median of COMMAND's remainder divided by catdoc's, and COMMAND's peak of resident memory. Exits with 1 where a
target is missed.
"""
import argparse
import os
import random
import statistics
import subprocess
import sys
import tempfile

RATIO_TARGET = 1.3
PEAK_TARGET_MIB = 100
BATCH = 20
DOCUMENT_BYTES = 270_000
WORDS = ("the of and agreement tenant owner boathouse invoice café Zürich naïve harbour total amount due on before "
         "shall be paid “quoted” – € 2024 council minutes meeting chair present apologies résumé").split()


def write_documents(folder):
    """A long and a short document by LibreOffice."""
    chance = random.Random(1)
    paragraphs = []
    while sum(map(len, paragraphs)) < DOCUMENT_BYTES * 0.62:  # the rest is what LibreOffice writes around each
        paragraphs.append(" ".join(chance.choices(WORDS, k=chance.randint(40, 120))).capitalize() + ".")
    sources = []
    for name, lines in (("long", paragraphs), ("short", ["One sentence that is long enough."])):
        sources.append(os.path.join(folder, name + ".txt"))
        with open(sources[-1], "w", encoding="utf-8-sig") as file:
            file.write("\n".join(lines))
    subprocess.run(["soffice", "-env:UserInstallation=file://" + folder + "/profile", "--headless", "--convert-to",
                    "rtf", "--outdir", folder, *sources], check=True, capture_output=True)
    return [source[:-3] + "rtf" for source in sources]


def run(command):
    """Processor seconds and peak resident MiB of a batch."""
    seconds, peak = 0, 0
    for _ in range(BATCH):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            sys.exit(f"{command} failed")
        seconds += usage.ru_utime + usage.ru_stime
        peak = max(peak, usage.ru_maxrss / 1024)
    return seconds, peak


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=15)
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    programs = {"ours": arguments.command, "catdoc": ["catdoc"]}
    net, peaks = {name: [] for name in programs}, []
    with tempfile.TemporaryDirectory(prefix="bench-rtf.") as folder:
        long, short = write_documents(folder)
        size = os.path.getsize(long)
        for pair in range(arguments.pairs):
            for name in sorted(programs, reverse=pair % 2 == 0):
                whole, peak = run([*programs[name], long])
                net[name].append(whole - run([*programs[name], short])[0])
                if name == "ours":
                    peaks.append(peak)
    ratio = statistics.median(ours / theirs for ours, theirs in zip(net["ours"], net["catdoc"]))
    mean = {name: statistics.median(values) / BATCH * 1000 for name, values in net.items()}
    print(f"rich text of {size} bytes: {ratio:.2f} times catdoc (target {RATIO_TARGET}), {mean['ours']:.2f} ms net beside "
          f"{mean['catdoc']:.2f} ms; peak {max(peaks):.1f} MiB (target {PEAK_TARGET_MIB})")
    return 1 if ratio > RATIO_TARGET or max(peaks) > PEAK_TARGET_MIB else 0


sys.exit(main())
