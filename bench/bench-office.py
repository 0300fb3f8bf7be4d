#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What reading an office document costs beside `unzip`, and beside programs that read the same.

Run as: bench-office.py [--pairs N] COMMAND...
COMMAND is what reads the file whose path is added to it: "build/release/bench/extract-office" or "varlo extract".

The documents: a docx with 4 MB of XML, and an xlsx of 20,000 rows with as many different strings. Each is read by
COMMAND, by unzip (only the part that has the text) and by docx2txt or xlsx2csv, one right after the other and in
alternating order, so that whatever else the machine does hits all alike. Net is processor time without what the same
program takes for an archive with nothing in it. Printed are medians, and COMMAND's peak of resident memory over all
runs (which is at least that of this script: what a process had before exec counts). Exits with 1 where a target is
missed.
"""
import argparse
import os
import random
import statistics
import subprocess
import sys
import tempfile
import zipfile

NET_TARGET = 1.2
SPEED_TARGET = 8
PEAK_TARGET_MIB = 100
DOCX_XML = 4_000_000
XLSX_ROWS = 20_000

HEAD = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
RELATIONSHIPS = "http://schemas.openxmlformats.org/package/2006/relationships"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
SHEET = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
PACKAGE = "application/vnd.openxmlformats-package"
SPREADSHEET = "application/vnd.openxmlformats-officedocument.spreadsheetml"
WORD = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"


def words(chance, count):
    """Words of two to ten letters; few of them often, as in prose."""
    vocabulary = words.vocabulary
    return " ".join(vocabulary[int(len(vocabulary) * chance.random() ** 3)] for _ in range(count))


def main_part(target):
    return (f'{HEAD}<Relationships xmlns="{RELATIONSHIPS}"><Relationship Id="rId1" Type="{OFFICE}/officeDocument" '
            f'Target="{target}"/></Relationships>')


def content_types(types):
    overrides = "".join(f'<Override PartName="{part}" ContentType="{kind}"/>' for part, kind in types.items())
    return f'{HEAD}<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">{overrides}</Types>'


def write_archive(path, parts):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, content in parts.items():
            archive.writestr(name, content)


def write_docx(path, chance):
    body = []
    size = 0
    while size < DOCX_XML:
        runs = "".join(
            f'<w:r><w:rPr><w:sz w:val="{chance.randint(20, 30)}"/></w:rPr>'
            f'<w:t xml:space="preserve">{words(chance, chance.randint(3, 12))} </w:t></w:r>'
            for _ in range(4)
        )
        body.append(f'<w:p><w:pPr><w:pStyle w:val="Normal"/></w:pPr>{runs}</w:p>')
        size += len(body[-1])
    document = f'{HEAD}<w:document xmlns:w="{WORD}"><w:body>{"".join(body)}</w:body></w:document>'
    write_archive(path, {"_rels/.rels": main_part("word/document.xml"), "word/document.xml": document})


def write_xlsx(path, chance):
    strings = []
    rows = []
    for row in range(1, XLSX_ROWS + 1):
        strings.append(f"<si><t>{row} {words(chance, chance.randint(2, 9))}</t></si>")
        rows.append(f'<row r="{row}"><c r="A{row}" t="s"><v>{row - 1}</v></c>'
                    f'<c r="B{row}"><v>{chance.randint(1, 99999) / 100}</v></c></row>')
    write_archive(path, {
        "[Content_Types].xml": content_types({
            "/_rels/.rels": f"{PACKAGE}.relationships+xml",
            "/xl/_rels/workbook.xml.rels": f"{PACKAGE}.relationships+xml",
            "/xl/workbook.xml": f"{SPREADSHEET}.sheet.main+xml",
            "/xl/worksheets/sheet1.xml": f"{SPREADSHEET}.worksheet+xml",
            "/xl/sharedStrings.xml": f"{SPREADSHEET}.sharedStrings+xml",
        }),
        "_rels/.rels": main_part("xl/workbook.xml"),
        "xl/workbook.xml": f'{HEAD}<workbook xmlns="{SHEET}" xmlns:r="{OFFICE}"><sheets>'
                           '<sheet name="Rows" sheetId="1" r:id="rId1"/></sheets></workbook>',
        "xl/_rels/workbook.xml.rels": f'{HEAD}<Relationships xmlns="{RELATIONSHIPS}">'
                                      f'<Relationship Id="rId1" Type="{OFFICE}/worksheet" Target="worksheets/sheet1.xml"/>'
                                      f'<Relationship Id="rId2" Type="{OFFICE}/sharedStrings" Target="sharedStrings.xml"/>'
                                      '</Relationships>',
        "xl/worksheets/sheet1.xml": f'{HEAD}<worksheet xmlns="{SHEET}"><sheetData>{"".join(rows)}</sheetData></worksheet>',
        "xl/sharedStrings.xml": f'{HEAD}<sst xmlns="{SHEET}" count="{XLSX_ROWS}" uniqueCount="{XLSX_ROWS}">'
                                f'{"".join(strings)}</sst>',
    })


def run(command):
    """Processor seconds, peak resident MiB and output size of a command."""
    with tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, stdout=output, stderr=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, output.tell()


def compare(commands, pairs):
    """The median of the processor seconds of each command, and the largest peak of the first."""
    seconds = {name: [] for name in commands}
    peak = 0
    for pair in range(pairs + 1):
        for name in commands if pair % 2 else reversed(commands):
            used, memory, _ = run(commands[name])
            if pair:  # the first round fills the page cache
                seconds[name].append(used)
            if name == "ours":
                peak = max(peak, memory)
    return {name: statistics.median(used) for name, used in seconds.items()}, peak


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=21)
    parser.add_argument("command", nargs="+")
    arguments = parser.parse_args()
    chance = random.Random(2024)
    words.vocabulary = ["".join(chance.choices("eeetaoinsrhldcumfpg", k=chance.randint(2, 10))) for _ in range(5000)]
    missed = False
    with tempfile.TemporaryDirectory(prefix="bench-office.") as folder:
        for kind, write, part, rival, rival_end in (
            ("docx", write_docx, "word/document.xml", "docx2txt", ["-"]),
            ("xlsx", write_xlsx, "xl/sharedStrings.xml", "xlsx2csv", []),
        ):
            path = os.path.join(folder, f"document.{kind}")
            nothing = os.path.join(folder, f"nothing.{kind}")
            write(path, chance)
            write_archive(nothing, {part: ""})
            used, peak = compare({
                "ours": [*arguments.command, path],
                "ours, nothing": [*arguments.command, nothing],
                "unzip": ["unzip", "-p", path, part],
                "unzip, nothing": ["unzip", "-p", nothing, part],
                rival: [rival, path, *rival_end],
            }, arguments.pairs)
            if run([*arguments.command, path])[2] < 8000 or run([rival, path, *rival_end])[2] < 100_000:
                print(f"{kind}: somebody did not read it")
                missed = True
            net = (used["ours"] - used["ours, nothing"]) / (used["unzip"] - used["unzip, nothing"])
            speed = used[rival] / used["ours"]
            missed = missed or net > NET_TARGET or speed < SPEED_TARGET or peak > PEAK_TARGET_MIB
            print(
                f"{kind}: {net:.2f} times unzip, net (target {NET_TARGET}); {speed:.0f} times as fast as {rival} "
                f"(target {SPEED_TARGET}); {used['ours'] * 1000:.1f} ms, {used['ours, nothing'] * 1000:.1f} of them for "
                f"nothing; peak {peak:.1f} MiB (target {PEAK_TARGET_MIB})",
                flush=True,
            )
    return 1 if missed else 0


sys.exit(main())
