# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""ZIP archives, deflated data and XML, by way of Office documents."""
import struct
import zlib

from hostile_files import CONTENT, EXHAUSTING, NO_TEXT, SENTENCE

MEBIBYTE = 1 << 20
PART_LIMIT = 4 * MEBIBYTE  # so much of a part is read
DOCUMENT = "word/document.xml"
STORED, DEFLATED = 0, 8
END_SIGNATURE = b"PK\x05\x06"


def deflate(data):
    compressor = zlib.compressobj(9, zlib.DEFLATED, -15)
    return compressor.compress(data) + compressor.flush()


def deflated_zeros(mebibytes):
    """A raw deflate stream of so many MiB of zeros, without making them."""
    compressor = zlib.compressobj(9, zlib.DEFLATED, -15)
    one = compressor.compress(bytes(MEBIBYTE)) + compressor.flush(zlib.Z_FULL_FLUSH)
    return one * mebibytes + b"\x03\x00"


class Entry:
    """One entry; what is given beside name and data overrides what would be true."""

    def __init__(self, name, data=b"", **lies):
        self.name = name if isinstance(name, bytes) else name.encode()
        self.method = lies.get("method", DEFLATED)
        self.packed = lies.get("packed", deflate(data) if self.method == DEFLATED else data)
        self.packed_size = lies.get("packed_size", len(self.packed))
        self.size = lies.get("size", len(data))
        self.offset = lies.get("offset")
        self.flags = lies.get("flags", 0)
        self.extra = lies.get("extra", b"")
        self.local_sizes = lies.get("local_sizes", True)

    def local(self):
        sizes = (self.packed_size, self.size) if self.local_sizes else (0, 0)
        return struct.pack("<4s5H3I2H", b"PK\x03\x04", 20, self.flags, self.method, 0, 0, 0,
                           *(size & 0xFFFFFFFF for size in sizes), len(self.name), len(self.extra)
                           ) + self.name + self.extra + self.packed

    def central(self, offset):
        return struct.pack("<4s6H3I5H2I", b"PK\x01\x02", 20, 20, self.flags, self.method, 0, 0, 0,
                           self.packed_size & 0xFFFFFFFF, self.size & 0xFFFFFFFF, len(self.name), 0, 0, 0, 0, 0,
                           (offset if self.offset is None else self.offset) & 0xFFFFFFFF) + self.name


def end_record(count, size, offset, comment=b""):
    return struct.pack("<4s4H2IH", END_SIGNATURE, 0, 0, count & 0xFFFF, count & 0xFFFF, size & 0xFFFFFFFF,
                       offset & 0xFFFFFFFF, len(comment)) + comment


def archive(entries, count=None, directory_offset=None, comment=b"", shared=()):
    """shared: further entries that are in the directory only."""
    pieces, central, length = [], [], 0
    for entry in entries:
        local = entry.local()
        central.append(entry.central(length))
        pieces.append(local)
        length += len(local)
    central += [entry.central(0) for entry in shared]
    body, directory = b"".join(pieces), b"".join(central)
    return body + directory + end_record(len(central) if count is None else count, len(directory),
                                         length if directory_offset is None else directory_offset, comment)


def paragraph(text=SENTENCE):
    return f"<w:p><w:r><w:t>{text}</w:t></w:r></w:p>"


def word(body, prolog=""):
    return (f'{prolog}<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:body>'
            f"{body}</w:body></w:document>").encode()


def slide(text):
    return f'<p:sld xmlns:p="p" xmlns:a="a"><a:t>{text}</a:t></p:sld>'.encode()


GOOD_PART = word(paragraph())


def write(files):
    files.add("good.docx", archive([Entry(DOCUMENT, GOOD_PART)]), CONTENT, text=SENTENCE, is_good=True)
    files.add("good.xlsx", archive([Entry("xl/sharedStrings.xml", f"<sst><si><t>{SENTENCE}</t></si></sst>".encode())]),
              CONTENT, text=SENTENCE, is_good=True)
    files.add("good.pptx", archive([Entry("ppt/slides/slide1.xml", slide(SENTENCE))]), CONTENT, text=SENTENCE,
              is_good=True)
    write_structures(files)
    write_compression(files)
    write_xml(files)
    write_disguises(files)


def write_structures(files):
    good = Entry(DOCUMENT, GOOD_PART)
    whole = archive([good])

    def add(name, content, *outcomes, **expected):
        if CONTENT in outcomes and len(outcomes) == 1:
            expected.setdefault("text", SENTENCE)
        files.add(name, content, *outcomes, **expected)

    bomb = Entry("ppt/slides/slide0.xml", packed=deflated_zeros(4), size=PART_LIMIT)
    overlapping = [Entry(f"ppt/slides/slide{n}.xml", packed=bomb.packed, size=PART_LIMIT) for n in range(1, 65_535)]
    add("overlapping-parts.pptx", archive([bomb], shared=overlapping), *EXHAUSTING)
    add("document-among-65535.docx", archive([Entry(f"x{n}") for n in range(65_534)] + [good]), CONTENT)
    slides = [Entry(f"ppt/slides/slide{n}.xml", slide(f"Slide {n}.")) for n in range(10_000)]
    add("ten-thousand-slides.pptx", archive(slides), CONTENT, text="Slide 0. Slide 1. Slide 2.")
    add("nested.docx", archive([Entry("inner.docx", whole, method=STORED)]), NO_TEXT)
    add("document-is-an-archive.docx", archive([Entry(DOCUMENT, whole, method=STORED)]), NO_TEXT)
    add("directory-past-the-end.docx", archive([good], directory_offset=0x7FFFFFFF), NO_TEXT)
    add("directory-at-4-gib.docx", archive([good], directory_offset=-1), NO_TEXT)
    add("count-too-high.docx", archive([good], count=65_535), CONTENT)
    add("count-of-none.docx", archive([good], count=0), NO_TEXT)
    for name, lie in (("offset-at-4-gib", {"offset": -1}), ("offset-past-the-end", {"offset": 0x7FFFFFFF}),
                      ("size-of-4-gib", {"packed_size": -1}), ("unknown-method", {"method": 14})):
        add(name + ".docx", archive([Entry(DOCUMENT, GOOD_PART, **lie)]), NO_TEXT)
    add("unpacked-size-of-4-gib.docx", archive([Entry(DOCUMENT, GOOD_PART, size=-1)]), NO_TEXT)
    add("end-in-its-comment.docx", archive([good], comment=b"x" * 100 + END_SIGNATURE + bytes(18)), NO_TEXT)
    add("longest-comment.docx", archive([good], comment=b"x" * 65_535), CONTENT)
    add("end-too-far-from-the-end.docx", archive([good], comment=b"x" * 65_535) + b"x", NO_TEXT)
    add("two-ends.docx", end_record(1, 0, 0) + archive([good], directory_offset=22 + len(good.local())), NO_TEXT,
        CONTENT)
    add("encrypted-flag.docx", archive([Entry(DOCUMENT, GOOD_PART, flags=1)]), CONTENT)
    add("data-descriptor.docx", archive([Entry(DOCUMENT, GOOD_PART, flags=8, local_sizes=False)]), CONTENT)
    add("longest-name.docx", archive([Entry(b"x" * 65_535), good]), CONTENT)
    add("invalid-name.docx", archive([Entry(b"\xff\xfe/\x80"), good]), CONTENT)
    add("name-that-climbs.docx", archive([Entry("../../../../../../tmp/varlo-was-here", SENTENCE.encode()), good]),
        CONTENT)
    for percent in (10, 50, 90, 99):
        add(f"cut-at-{percent}-percent.docx", whole[:len(whole) * percent // 100], NO_TEXT)
    for position in range(0, len(whole), 7):
        flipped = bytearray(whole)
        flipped[position] ^= 0xFF
        add(f"flipped-at-{position}.docx", bytes(flipped), CONTENT, NO_TEXT)
    add("end-alone.docx", end_record(1, 46, 0), NO_TEXT)
    add("empty.docx", b"", NO_TEXT)


def write_compression(files):
    def add(name, size, *outcomes, data=GOOD_PART):
        files.add(name + ".docx", archive([Entry(DOCUMENT, packed=deflate(data), size=size)]), *outcomes)

    add("one-byte-less-than-said", len(GOOD_PART) + 1, NO_TEXT)
    add("as-said", len(GOOD_PART), CONTENT)
    add("one-byte-more-than-said", len(GOOD_PART) - 1, CONTENT)
    add("of-no-size", 0, NO_TEXT)
    add("a-thousand-to-one", 1 << 30, NO_TEXT, data=bytes(64 * MEBIBYTE))
    files.add("gigabytes-of-zeros.docx", archive([Entry(DOCUMENT, packed=deflated_zeros(4000), size=4000 * MEBIBYTE)]),
              NO_TEXT)
    files.add("endless-stream.docx", archive([Entry(DOCUMENT, packed=b"\x00\x00\x00\xff\xff" * 1_000_000, size=100)]),
              NO_TEXT)
    files.add("no-stream.docx", archive([Entry(DOCUMENT, packed=b"\xff" * 1000, size=100)]), NO_TEXT)


def write_xml(files):
    def add(name, part, *outcomes, text=None):
        outcomes = outcomes or (CONTENT,)
        files.add(name + ".docx", archive([Entry(DOCUMENT, part if isinstance(part, bytes) else part.encode())]),
                  *outcomes, text=text)

    either = (CONTENT, NO_TEXT)  # what stands before the entity counts, and that may be nothing
    laughs = "".join(f'<!ENTITY l{n} "{f"&l{n - 1};" * 10}">' for n in range(1, 12))
    add("billion-laughs", word(paragraph() + paragraph("&l11;"), f'<!DOCTYPE x [<!ENTITY l0 "lol">{laughs}]>'), *either)
    add("quadratic-entities", word(paragraph() + paragraph("&a;" * 50_000), f'<!DOCTYPE x [<!ENTITY a "{"x" * 50_000}">]>'),
        *either)
    for name, target in (("file", "file://" + files.secret_path), ("network", files.address + "/x.xml")):
        add(f"entity-of-a-{name}", word(paragraph() + paragraph("&x;"), f'<!DOCTYPE x [<!ENTITY x SYSTEM "{target}">]>'),
            *either)
        add(f"definitions-of-a-{name}", word(paragraph(), f'<!DOCTYPE x SYSTEM "{target}">'), *either)
        add(f"parameter-entity-of-a-{name}",
            word(paragraph(), f'<!DOCTYPE x [<!ENTITY % p SYSTEM "{target}"> %p;]>'), *either)
    attributes = " ".join(f'a{n:x}=""' for n in range(400_000))
    add("many-attributes", word(f"<x {attributes}/>" + paragraph())[:PART_LIMIT], *either)
    add("long-attribute", word(paragraph() + f'<x a="{"y" * PART_LIMIT}"/>'), text=SENTENCE)
    add("deep", word(paragraph() + "<a>" * 2_000_000), text=SENTENCE)
    add("unbound-prefix", "<x:document><x:t>" + SENTENCE + "</x:t></x:document>", text=SENTENCE)
    add("utf-16", word(paragraph(), '<?xml version="1.0" encoding="UTF-16"?>').decode().encode("utf-16"), text=SENTENCE)
    add("byte-order-mark", b"\xef\xbb\xbf" + GOOD_PART, text=SENTENCE)
    add("unknown-encoding", word(paragraph(), '<?xml version="1.0" encoding="x-nobody-knows"?>'), *either)
    add("wrong-encoding", word(paragraph("caf\u00e9 " + SENTENCE), '<?xml version="1.0" encoding="US-ASCII"?>'), *either)
    add("cdata", word(paragraph("<![CDATA[" + SENTENCE + "]]>")), *either)
    add("cut-inside-a-tag", word(paragraph() + "<w:r/>" * 700_000)[:PART_LIMIT + 100], text=SENTENCE)
    add("never-closed", word(paragraph())[:-40], text=SENTENCE)
    add("not-xml", SENTENCE, NO_TEXT)
    add("references-out-of-range", word(paragraph() + paragraph("&#0;&#x110000;&#xD800;")), *either)
    add("mebibytes-of-text", word(paragraph("word " * 700_000)), text="word word")


def write_disguises(files):
    compound = bytes.fromhex("d0cf11e0a1b11ae1") + bytes(8000)
    page = f"<html><body><table><tr><td>{SENTENCE}</td></tr></table></body></html>".encode()
    for extension in ("docx", "xlsx", "pptx"):
        files.add(f"compound-file.{extension}", compound, NO_TEXT)
        files.add(f"web-page.{extension}", page, NO_TEXT)
        files.add(f"rich-text.{extension}", b"{\\rtf1 " + SENTENCE.encode() + b"}", NO_TEXT)
        files.add(f"no-parts.{extension}", archive([Entry("mimetype", b"x", method=STORED)]), NO_TEXT)
