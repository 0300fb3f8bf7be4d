#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What reading a picture for the model costs beside vipsthumbnail.

Run as: bench-pictures.py [--pairs N] [--further COMMAND] COMMAND...
COMMAND is what reads the file whose path is added to it: "build/release/bench/read-image" or "varlo extract". What
libvips reads is given to --further (one word), if that is another program.

The pictures are made first, photo-like (fractal noise with grain and shapes), by ImageMagick, libvips and heif-enc.
Each file is read by both, one right after the other and in alternating order, so that whatever else the machine does
hits both alike. vipsthumbnail makes the same: at most 1568 pixels, JPEG quality 80. Printed are the medians over the
pairs of COMMAND's processor time divided by vipsthumbnail's, and of the peaks of resident memory (which are at least
that of this script: what a process had before exec counts). Exits with 1 where a target is missed.
"""
import argparse
import os
import statistics
import subprocess
import sys
import tempfile

# Processor time and peak memory at most so many times vipsthumbnail's, and the peak at most so many MiB.
NO_LIMIT = float("inf")
TARGETS = {
    "12.jpg": (0.6, 1.0, 100),
    "48.jpg": (0.6, 1.0, 100),
    "12-progressive.jpg": (0.75, 1.0, NO_LIMIT),
    "48-progressive.jpg": (0.75, 1.0, NO_LIMIT),
    "12.png": (1.1, 1.2, 100),
    "12.tif": (1.1, 1.2, 100),
    "12.webp": (1.1, 1.2, 100),
    "12.heic": (1.1, 1.2, 150),
    "12.avif": (1.2, 1.2, 150),
}
FOR_FURTHER = (".tif", ".heic", ".avif")


def quiet(*command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def make_pictures(folder):
    photo, large = os.path.join(folder, "12.ppm"), os.path.join(folder, "48.ppm")
    quiet(
        "convert", "-size", "4000x3000", "-seed", "7", "plasma:fractal", "-attenuate", "0.35", "+noise", "Gaussian",
        "-fill", "#204080", "-draw", "circle 2000,1500 2500,1900", "-fill", "white", "-draw", "rectangle 300,300 900,1500",
        "-depth", "8", photo,
    )
    quiet("vips", "resize", photo, large, "2", "--kernel", "linear")
    # Cameras store colour at half the resolution.
    for source, name in ((photo, "12"), (large, "48")):
        for suffix, interlace in (("", "false"), ("-progressive", "true")):
            target = os.path.join(folder, f"{name}{suffix}.jpg")
            quiet("vips", "copy", source, f"{target}[Q=90,interlace={interlace},subsample-mode=on]")
    for name in ("12.png", "12.tif", "12.webp[Q=85]"):
        quiet("vips", "copy", photo, os.path.join(folder, name))
    jpeg = os.path.join(folder, "12.jpg")
    quiet("heif-enc", "-q", "60", "-p", "x265:preset=ultrafast", "-o", os.path.join(folder, "12.heic"), jpeg)
    quiet("heif-enc", "-A", "-q", "60", "-p", "speed=9", "-o", os.path.join(folder, "12.avif"), jpeg)
    os.remove(photo)
    os.remove(large)


def run(command):
    """Processor seconds and peak resident MiB of a command and all that it waited for."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(command)}: exit code {process.returncode}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def compare(command, path, folder, pairs):
    theirs = ["vipsthumbnail", path, "-s", "1568x1568", "-o", os.path.join(folder, "thumbnail.jpg[Q=80]")]
    run(theirs)  # from here on the page cache has it
    ratios, our_peaks, their_peaks = [], [], []
    for pair in range(pairs):
        runs = {}
        for name in ("ours", "theirs") if pair % 2 else ("theirs", "ours"):
            runs[name] = run([*command, path] if name == "ours" else theirs)
        ratios.append(runs["ours"][0] / runs["theirs"][0])
        our_peaks.append(runs["ours"][1])
        their_peaks.append(runs["theirs"][1])
    return statistics.median(ratios), statistics.median(our_peaks), statistics.median(their_peaks)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=11)
    parser.add_argument("--further")
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    missed = False
    with tempfile.TemporaryDirectory(prefix="bench-pictures.") as folder:
        make_pictures(folder)
        for name, (time_target, peak_target, peak_limit) in TARGETS.items():
            is_further = arguments.further and name.endswith(FOR_FURTHER)
            command = [arguments.further] if is_further else arguments.command
            ratio, ours, theirs = compare(command, os.path.join(folder, name), folder, arguments.pairs)
            is_missed = ratio > time_target or ours > peak_target * theirs or ours > peak_limit
            missed = missed or is_missed
            print(
                f"{name}: {ratio:.2f} times vipsthumbnail (target {time_target}); peak {ours:.0f} MiB beside {theirs:.0f} "
                f"(target {peak_target} times){' MISSED' if is_missed else ''}",
                flush=True,
            )
    return 1 if missed else 0


sys.exit(main())
