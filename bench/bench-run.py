#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The whole road of 1000 text files: `varlo suggest` against a server on loopback that takes 20 ms for a reply.

Five requests are in flight, so the server alone takes 1000 x 20 ms / 5 = 4 s.

Run as: bench-run.py [--runs N] VARLO FAKE_SERVER
Exits with 1 where a target is missed.
"""
import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

FILES, DELAY_MS, IN_FLIGHT, WALL_TARGET = 1000, 20, 5, 1.15


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("varlo")
    parser.add_argument("server")
    arguments = parser.parse_args()
    walls, connections = [], 0
    with tempfile.TemporaryDirectory(prefix="bench-run.") as root:
        files = os.path.join(root, "files")
        os.mkdir(files)
        for number in range(FILES):
            with open(os.path.join(files, f"scan_{number:04}.txt"), "w", encoding="ascii") as text:
                text.write(f"Letter number {number} about the meeting of next week. " * 40)
        environment = dict(os.environ, VARLO_API_KEY="bench", XDG_CONFIG_HOME=root, XDG_STATE_HOME=root)
        for _ in range(arguments.runs):
            with subprocess.Popen([arguments.server, "--port", "0", "--delay", str(DELAY_MS)], stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, text=True) as server:
                address = server.stdout.readline().strip()
                start = time.monotonic()
                result = subprocess.run([arguments.varlo, "suggest", "--json", "--endpoint", address, files],
                                        env=environment, capture_output=True, text=True, check=True)
                walls.append(time.monotonic() - start)
                assert result.stdout.count('"suggested"') == FILES, result.stdout[:500]
                server.terminate()
                said = server.stdout.read() + server.stderr.read()
            found = re.search(r"(\d+) connections?", said)
            connections = max(connections, int(found.group(1)) if found else 0)
    ratio = statistics.median(walls) / (FILES * DELAY_MS / 1000 / IN_FLIGHT)
    print(f"suggestion run: {statistics.median(walls):.2f} s, {ratio:.3f} times the server's own time "
          f"(target {WALL_TARGET}); {connections} connections (target {IN_FLIGHT})")
    return 1 if ratio > WALL_TARGET or connections > IN_FLIGHT else 0


sys.exit(main())
