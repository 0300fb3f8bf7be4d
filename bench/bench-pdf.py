#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What reading a PDF costs beside pdftotext, pdftoppm and tesseract.

Run as: bench-pdf.py [--pairs N] COMMAND...
COMMAND is what prints the text of the file whose path is added to it: "build/release/bench/read-pdf" or "varlo extract".

Both sides read each document one right after the other and in alternating order. Printed is the median over the pairs of
the processor time of COMMAND divided by the other side's, both without what the same program takes for a file that is no
PDF (for recognition: with it). Exits with 1 where a target is missed.
"""
import argparse
import contextlib
import os
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile
import time
import zlib

import scans

ENVIRONMENT = {**os.environ, "OMP_THREAD_LIMIT": "1"}
TEXT_TARGET, WHOLE_TARGET, SCAN_TARGET = 1.3, 50, 1.1
TEXT_PEAK_MIB, SCAN_PEAK_MIB = 100, 300
LINES_A_PAGE, LINE_LENGTH = 44, 82
KIDS = 40  # of a node of the page tree
CHARACTERS_KEPT = 8000


def prose(vocabulary, lines, generator):
    line, found = "", []
    while len(found) < lines:
        word = generator.choice(vocabulary)
        if len(line) + len(word) >= LINE_LENGTH:
            found.append(line)
            line = ""
        line += word + " "
    return found


def page_tree(leaves, objects):
    """Adds nodes over the pages until one is left; each object is (body without its parent, numbers of its kids)."""
    level = [(number, 1) for number in leaves]
    while len(level) > 1 or level[0][0] in leaves:
        above = []
        for first in range(0, len(level), KIDS):
            kids = level[first:first + KIDS]
            count = sum(pages for _, pages in kids)
            objects.append(b"<< /Type /Pages /Count %d /Kids [ %s ]"
                           % (count, b" ".join(b"%d 0 R" % number for number, _ in kids)))
            for number, _ in kids:
                objects[number - 1] += b" /Parent %d 0 R >>" % len(objects)
            above.append((len(objects), count))
        level = above
    objects[level[0][0] - 1] += b" >>"
    return level[0][0]


def write_book(path, pages):
    """A PDF of prose in Times, a compressed stream a page."""
    generator = random.Random(pages)
    vocabulary = " ".join(scans.read_texts().values()).split()
    objects = [b"", b"<< /Type /Font /Subtype /Type1 /BaseFont /Times-Roman /Encoding /WinAnsiEncoding >>"]
    leaves = []
    for _ in range(pages):
        shown = b"".join(
            b"(%s) Tj T*\n" % line.encode("cp1252").replace(b"\\", b"").replace(b"(", b"").replace(b")", b"")
            for line in prose(vocabulary, LINES_A_PAGE, generator))
        stream = zlib.compress(b"BT /F 11 Tf 16 TL 72 770 Td\n" + shown + b"ET")
        objects.append(b"<< /Length %d /Filter /FlateDecode >>\nstream\n%s\nendstream" % (len(stream), stream))
        objects.append(b"<< /Type /Page /MediaBox [0 0 595 842] /Resources << /Font << /F 2 0 R >> >> /Contents %d 0 R"
                       % len(objects))
        leaves.append(len(objects))
    objects[0] = b"<< /Type /Catalog /Pages %d 0 R >>" % page_tree(leaves, objects)
    scans.write_pdf(objects, path)


def write_twelve_pages(path, folder):
    """A scan whose first pages fill the characters kept: how many pages that takes."""
    texts = list(scans.read_texts().values())
    drawn = []
    for number, text in enumerate(texts):
        page = scans.set_by_pango(text, 11, folder)
        drawn.append(page.rename(folder / f"{number}.png"))
    scans.write_scan(drawn * 4, path)
    characters = pages = 0
    while characters < CHARACTERS_KEPT:
        characters += len(" ".join(texts[pages % len(texts)].split()))
        pages += 1
    return pages


def run(command):
    """Processor seconds of a command with its children, wall seconds, and peak resident MiB."""
    start = time.monotonic()
    process = subprocess.Popen([str(part) for part in command], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               env=ENVIRONMENT)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return usage.ru_utime + usage.ru_stime, time.monotonic() - start, usage.ru_maxrss / 1024


def start_cost(command, nothing):
    return statistics.median(run([*command, nothing])[0] for _ in range(15))


def compare(ours, theirs, pairs, our_start=0.0, their_start=0.0):
    """Median ratio of processor times, both medians, our peak."""
    run(ours)
    run(theirs)
    ratios, our_times, their_times, peaks = [], [], [], []
    for pair in range(pairs):
        runs = {}
        for name in ("ours", "theirs") if pair % 2 else ("theirs", "ours"):
            runs[name] = run(ours if name == "ours" else theirs)
        our_times.append(runs["ours"][0] - our_start)
        their_times.append(runs["theirs"][0] - their_start)
        ratios.append(our_times[-1] / max(their_times[-1], 1e-4))
        peaks.append(runs["ours"][2])
    return statistics.median(ratios), statistics.median(our_times), statistics.median(their_times), max(peaks)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=21)
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    command = arguments.command
    missed = False
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="bench-pdf.")))
        nothing, book, scan = folder / "nothing.pdf", folder / "book.pdf", folder / "scan.pdf"
        nothing.write_text("This file is no PDF.")  # longer than what Poppler refuses before it starts
        our_start = start_cost(command, nothing)
        their_start = start_cost(["pdftotext", "-l", "6"], nothing)
        print(f"start: {our_start * 1000:.1f} ms beside pdftotext's {their_start * 1000:.1f} ms")
        for pages in (2, 1500, 2415):
            write_book(book, pages)
            ratio, ours, theirs, peak = compare([*command, book], ["pdftotext", "-l", "6", book, "-"], arguments.pairs,
                                                our_start, their_start)
            missed = missed or ratio > TEXT_TARGET or peak > TEXT_PEAK_MIB
            print(f"{pages} pages: {ratio:.2f} times pdftotext -l 6 (target {TEXT_TARGET}), net {ours * 1000:.1f} ms "
                  f"beside {theirs * 1000:.1f} ms; peak {peak:.0f} MiB (target {TEXT_PEAK_MIB})", flush=True)
        ratio, ours, theirs, _ = compare([*command, book], ["pdftotext", book, "-"], 3)
        missed = missed or theirs < WHOLE_TARGET * ours
        print(f"2415 pages whole: pdftotext takes {theirs / ours:.0f} times ours (target {WHOLE_TARGET}), {theirs:.2f} s "
              f"beside {ours:.3f} s", flush=True)

        pages = write_twelve_pages(scan, folder)
        listed = folder / "pages.txt"
        digits = 2  # pdftoppm pads its numbers to the document's last one
        listed.write_text("".join(f"{folder}/page-{number:0{digits}}.pgm\n" for number in range(1, pages + 1)))
        by_hand = ["sh", "-c", 'pdftoppm -gray -r 144 -l "$2" "$1/scan.pdf" "$1/page" && '
                   'tesseract "$1/pages.txt" stdout -l eng+nld+spa', "sh", folder, pages]
        ratio, ours, theirs, peak = compare([*command, scan], by_hand, 5)
        missed = missed or ratio > SCAN_TARGET or peak > SCAN_PEAK_MIB
        print(f"scan, {pages} of 12 pages: {ratio:.2f} times pdftoppm and tesseract (target {SCAN_TARGET}), {ours:.2f} s "
              f"beside {theirs:.2f} s; peak {peak:.0f} MiB (target {SCAN_PEAK_MIB})")
    return 1 if missed else 0


sys.exit(main())
