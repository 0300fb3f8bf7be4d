#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What it costs to read each file in a locked-down process of its own.

Run as: bench-isolation.py [--pairs N] VARLO EXTRACTOR IN_PROCESS SAMPLES
EXTRACTOR is the starter of the workers, IN_PROCESS is VARLO's own "extract" without any ("extract-in-process"),
SAMPLES is the folder of sample files.

1. Processor time, and wall time, of "extract" over 200 small files of every kind that takes a worker, divided by those
   of IN_PROCESS, in alternating pairs.
2. Wall time from asking a warm starter for a worker to the worker's last byte, for a file of one sentence.
3. Memory of the starter with five workers that have not begun to read, each page divided by the processes that share
   it. Only the administrator may see that.
4. Photos of 12 megapixels in a second with five workers at once beside one at a time.
Exits with 1 where a target is missed.
"""
import argparse
import os
import pathlib
import re
import socket
import statistics
import struct
import subprocess
import sys
import tempfile
import time

COST_TARGET = 1.25
LATENCY_TARGET_MS = 10
MEMORY_TARGET_MIB = 60
THROUGHPUT_TARGET = 1.6
FILES = 200
PHOTOS = 40
SCANS = re.compile("scan|doc00", re.IGNORECASE)  # their recognition would hide everything else
CONTROL_MESSAGE = "=IIiBBBB8s"  # as isolation/ControlMessage.cpp has it


class Starter:
    """The parent's side of the conversation."""

    def __init__(self, program):
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        environment = {"MALLOC_ARENA_MAX": "1", "OMP_THREAD_LIMIT": "1", "QT_NO_GLIB": "1", "VIPS_NOVECTOR": "1",
                       "VIPS_BLOCK_UNTRUSTED": "1", "LC_ALL": "C.UTF-8", "LD_BIND_NOW": "1",
                       "GLIBC_TUNABLES": "glibc.malloc.hugetlb=1:glibc.malloc.mmap_threshold=1073741824"
                                         ":glibc.malloc.trim_threshold=1073741824"}
        self.control = ours
        self.process = subprocess.Popen(
            ["sh", "-c", f'exec "$0" 3<&{theirs.fileno()}', program], pass_fds=[theirs.fileno()], env=environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        theirs.close()
        self.latest_id = 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.control.close()
        self.process.wait()

    def ask(self, path, blocked=False):
        """The socket that the answer comes over; a blocked worker waits before its first word."""
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        if blocked:
            theirs.setsockopt(socket.SOL_SOCKET, socket.SO_SNDBUF, 1)
            theirs.setblocking(False)
            try:
                while True:
                    theirs.send(b"x" * 500)
            except BlockingIOError:
                theirs.setblocking(True)
        self.latest_id += 1
        extension = path.suffix[1:].lower().encode()
        message = struct.pack(CONTROL_MESSAGE, 1, self.latest_id, 0, 0, 0, 0, 0, extension)
        with open(path, "rb") as file, theirs:
            socket.send_fds(self.control, [message], [theirs.fileno(), file.fileno()])
        return ours

    def read(self, path):
        """How many bytes the answer has."""
        size = 0
        with self.ask(path) as answer:
            while message := answer.recv(1 << 17):
                size += len(message)
        return size

    def processes(self):
        """The starter, its branches, and the workers of them all."""
        found = [self.process.pid]
        for pid in found:
            found += map(int, pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split())
        return found


def seconds(command):
    """Of the processor, and of the clock."""
    before = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode not in (0, 1):  # 1: some file holds nothing
        sys.exit(f"{command[0]} failed")
    return usage.ru_utime + usage.ru_stime, time.monotonic() - before


def compare_cost(varlo, in_process, files, pairs):
    costs = {varlo: [], in_process: []}
    for pair in range(pairs):
        for program in sorted(costs, reverse=pair % 2 == 0):
            costs[program].append(seconds([program, "extract", "--json", "--", *files]))
    fine = True
    for index, what in enumerate(("processor", "wall")):
        ours, theirs = ([cost[index] for cost in costs[program]] for program in (varlo, in_process))
        ratio = statistics.median(our / their for our, their in zip(ours, theirs))
        print(f"{len(files)} small files: {ratio:.2f} times the {what} time in process (target {COST_TARGET}), "
              f"{statistics.median(ours):.2f} s beside {statistics.median(theirs):.2f} s", flush=True)
        fine = fine and ratio <= COST_TARGET
    return fine


def measure_latency(extractor, folder):
    path = folder / "sentence.rtf"
    path.write_text(r"{\rtf1 One sentence that is long enough.}")
    times = []
    with Starter(extractor) as starter:
        for _ in range(100):
            before = time.monotonic()
            if starter.read(path) < 20:
                sys.exit("the worker did not answer")
            times.append((time.monotonic() - before) * 1000)
    median = statistics.median(times[5:])
    print(f"one worker: {median:.2f} ms (target {LATENCY_TARGET_MS}), the slowest of 95 {max(times[5:]):.2f} ms", flush=True)
    return median <= LATENCY_TARGET_MS


def proportional_mib(pids):
    total = 0
    for pid in pids:
        rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
        total += int(re.search(r"^Pss:\s+(\d+)", rollup, re.MULTILINE)[1])
    return total / 1024


def measure_memory(extractor, samples):
    if os.geteuid() != 0:
        print("memory: only the administrator may see it")
        return True
    with Starter(extractor) as starter:
        chosen = {path.suffix.lower(): path for path in sorted(samples.iterdir())}
        for extension in (".pdf", ".jpg", ".heic"):  # every library but the models is loaded then
            starter.read(chosen[extension])
        time.sleep(0.2)  # the workers end after their answers
        idle = len(starter.processes())
        answers = [starter.ask(chosen[".pdf"], blocked=True) for _ in range(5)]
        while len(starter.processes()) < idle + 5:
            time.sleep(0.01)
        time.sleep(0.2)
        memory = proportional_mib(starter.processes())
        for answer in answers:
            answer.close()
    print(f"starter and five idle workers: {memory:.1f} MiB (target {MEMORY_TARGET_MIB})", flush=True)
    return memory <= MEMORY_TARGET_MIB


def write_photos(folder):
    """One picture as a camera would take it, under many names, as its decoding does not get faster."""
    photo = folder / "photo-0.jpg"
    subprocess.run(["convert", "-seed", "1", "-size", "4000x3000", "plasma:fractal", "-attenuate", "0.3", "+noise",
                    "Gaussian", "-quality", "90", photo], check=True)
    photos = [photo]
    for number in range(1, PHOTOS):
        photos.append(folder / f"photo-{number}.jpg")
        os.link(photo, photos[-1])
    return photos


def seconds_for(starter, photos, at_once):
    before = time.monotonic()
    answers = []
    for photo in photos:
        if len(answers) == at_once:
            drain(answers.pop(0))
        answers.append(starter.ask(photo))
    for answer in answers:
        drain(answer)
    return time.monotonic() - before


def drain(answer):
    with answer:
        while answer.recv(1 << 17):
            pass


def measure_throughput(extractor, folder, pairs):
    photos = write_photos(folder)
    ratios = []
    with Starter(extractor) as starter:
        starter.read(photos[0])
        for _ in range(pairs):
            ratios.append(seconds_for(starter, photos, 1) / seconds_for(starter, photos, 5))
    ratio = statistics.median(ratios)
    print(f"{PHOTOS} photos: five at once are {ratio:.2f} times as fast as one (target {THROUGHPUT_TARGET} on two cores)")
    return ratio >= THROUGHPUT_TARGET or os.cpu_count() < 2


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=9)
    parser.add_argument("varlo")
    parser.add_argument("extractor")
    parser.add_argument("in_process")
    parser.add_argument("samples", type=pathlib.Path)
    arguments = parser.parse_args()
    text = {".txt", ".md", ".csv", ".tsv", ".log", ".json", ".xml", ".html", ".htm", ".yaml", ".yml", ".svg", ".srt",
            ".vtt", ".eml", ".mp4", ""}
    samples = [str(path) for path in sorted(arguments.samples.iterdir())
               if path.suffix.lower() not in text and not SCANS.search(path.name)]
    files = (samples * FILES)[:FILES]
    with tempfile.TemporaryDirectory(prefix="bench-isolation.") as name:
        folder = pathlib.Path(name)
        fine = [compare_cost(arguments.varlo, arguments.in_process, files, arguments.pairs),
                measure_latency(arguments.extractor, folder),
                measure_memory(arguments.extractor, arguments.samples),
                measure_throughput(arguments.extractor, folder, max(arguments.pairs // 3, 1))]
    return 0 if all(fine) else 1


sys.exit(main())
