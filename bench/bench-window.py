#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window beside an empty one of Qt Quick, and over many files. Drawn by the software renderer, off screen.

Run as: bench-window.py [--pairs N] WINDOW EMPTY_WINDOW USE_WINDOW FAKE_SERVER
Exits with 1 where a target is missed.
"""
import argparse
import os
import statistics
import subprocess
import sys
import tempfile
import time

START_TARGET, RESIDENT_TARGET = 1.5, 1.6  # times the empty window, with 200 rows to the first frame that shows them
STALL_TARGET_MS, FRAME_TARGET_MS, ROWS_TARGET_MIB = 100, 33, 60


def cost(command, environment):
    """Seconds of wall and of processor, and peak memory in MiB."""
    start = time.monotonic()
    process = subprocess.Popen(command, env=environment)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.monotonic() - start
    if status:
        raise SystemExit(f"{command[0]} failed: {status}")
    return wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def make_files(folder, count):
    os.mkdir(folder)
    for number in range(count):
        with open(os.path.join(folder, f"scan_{number:05}.txt"), "w", encoding="ascii") as text:
            text.write(f"Letter number {number} about the meeting of next week. " * 10)
    return folder


def figures(command, environment):
    lines = subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout.split("\n")
    return {name: float(value) for name, value in (line.split() for line in lines if line)}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=15)
    parser.add_argument("window")
    parser.add_argument("empty")
    parser.add_argument("use")
    parser.add_argument("server")
    arguments = parser.parse_args()
    missed = []

    def say(text, value, target):
        print(f"window: {text} {value:.2f} (target {target})")
        if value > target:
            missed.append(text)

    with tempfile.TemporaryDirectory(prefix="bench-window.") as root:
        base = {name: value for name, value in os.environ.items() if not name.startswith(("VARLO_", "DBUS_"))}
        base |= {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software", "HOME": root, "XDG_CONFIG_HOME": root,
                 "XDG_DATA_HOME": root, "XDG_STATE_HOME": root, "XDG_CACHE_HOME": os.path.join(root, "cache"),
                 "XDG_RUNTIME_DIR": os.path.join(root, "run")}
        os.mkdir(base["XDG_RUNTIME_DIR"], 0o700)
        os.mkdir(os.path.join(root, "varlo"))
        with open(os.path.join(root, "varlo", "preferences.json"), "w", encoding="utf-8") as preferences:
            preferences.write('{"hasCompletedOnboarding": true}')  # else the introduction is what is measured
        rows = make_files(os.path.join(root, "rows"), 200)
        ours, theirs = [arguments.window, rows], [arguments.empty]
        quits = base | {"VARLO_QUIT_AT_ROWS": "200"}
        ratios, empty_resident = [], 0
        for pair in range(-2, arguments.pairs):  # two to warm up
            costs = {}
            for command in (ours, theirs) if pair % 2 else (theirs, ours):
                costs[command[0]] = cost(command, quits)
            if pair >= 0:
                ratios.append([our / their for our, their in zip(costs[ours[0]], costs[theirs[0]])])
                empty_resident = costs[theirs[0]][2]
        wall, cpu, resident = (statistics.median(column) for column in zip(*ratios))
        say("first frame with 200 rows, wall, times an empty window", wall, START_TARGET)
        say("first frame with 200 rows, processor, times an empty window", cpu, START_TARGET)
        say("resident memory, times an empty window", resident, RESIDENT_TARGET)

        many = make_files(os.path.join(root, "many"), 10_000)
        found = figures([arguments.use, many, "rows"], base)
        say("10,000 rows: longest stall of the event loop while they come, ms", found["add_stall_ms"], STALL_TARGET_MS)
        say("10,000 rows: 99th percentile of a frame, ms", found["frame_p99_ms"], FRAME_TARGET_MS)
        say("10,000 rows: MiB over an empty window", found["resident_mib"] - empty_resident, ROWS_TARGET_MIB)

        with subprocess.Popen([arguments.server, "--port", "0", "--delay", "20"], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True) as server:
            environment = base | {"VARLO_ENDPOINT": server.stdout.readline().strip(), "VARLO_API_KEY": "bench"}
            found = figures([arguments.use, make_files(os.path.join(root, "some"), 500), "suggest"], environment)
            server.terminate()
            assert found["named"] == 500, found
        say("run over 500 files: longest stall, ms", found["suggest_stall_ms"], STALL_TARGET_MS)
        found = figures([arguments.use, many, "rename"], base)
        assert found["left"] == 0, found
        say("Rename All of 10,000: longest stall, ms", found["rename_stall_ms"], STALL_TARGET_MS)
    return 1 if missed else 0


sys.exit(main())
