# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures and their EXIF facts."""
import random
import struct
import zlib

from hostile_files import CONTENT, EXHAUSTING, NO_TEXT, SENTENCE
from pdfs import zeros

DECODED_OR_NOT = (CONTENT, NO_TEXT)
DECODED_OR_DIED = (CONTENT, *EXHAUSTING)


def write(files):
    files.add("good.png", png(8, 8), CONTENT, is_good=True)
    files.add("good.jpg", jpeg(16, 16), CONTENT, is_good=True)
    write_pngs(files)
    write_other_bombs(files)
    write_jpegs(files)
    write_facts(files)
    write_disguises(files)


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, height, depth=8, color=0, interlaced=0, data=None, more=b""):
    if data is None:
        data = zlib.compress((b"\0" + bytes(range(width))) * height)
    head = struct.pack(">IIBBBBB", width, height, depth, color, 0, 0, interlaced)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + more + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def write_pngs(files):
    data = zeros(300)  # 50,000 lines of 6,251 bytes
    files.add("50000-by-50000-black-and-white.png", png(50_000, 50_000, depth=1, data=data), NO_TEXT)
    files.add("50000-by-50000-cut-short.png", png(50_000, 50_000, color=2, data=data[:3000]), NO_TEXT)
    files.add("50000-by-50000-interlaced.png", png(50_000, 50_000, color=6, interlaced=1, data=data), NO_TEXT)
    files.add("20000-by-19000-interlaced.png", png(20_000, 19_000, interlaced=1, data=zeros(365)), *DECODED_OR_DIED)
    files.add("largest-said.png", png(0x7FFFFFFF, 0x7FFFFFFF, data=data[:3000]), NO_TEXT)
    files.add("no-width.png", png(0, 8, data=zlib.compress(b"")), NO_TEXT)
    files.add("profile-bomb.png", png(8, 8, more=chunk(b"iCCP", b"x\0\0" + zeros(1024))), *DECODED_OR_DIED)
    files.add("text-bomb.png", png(8, 8, more=chunk(b"zTXt", b"Comment\0\0" + zeros(1024))), *DECODED_OR_DIED)
    files.add("palette-missing.png", png(8, 8, color=3), *DECODED_OR_NOT)
    whole = png(8, 8)
    files.add("length-past-the-end.png", whole[:33] + b"\x7f\xff\xff\xff" + whole[37:], *DECODED_OR_NOT)


def tiff(entries, data=b"", next_directory=0, order="<"):
    """entries: (tag, type, count, value); offsets are counted from the start of data where a value is a string."""
    start = 8 + 2 + 12 * len(entries) + 4
    rows = b"".join(struct.pack(order + "HHII", tag, kind, count, start + int(value) if isinstance(value, str) else value)
                    for tag, kind, count, value in entries)
    mark = b"II*\0" if order == "<" else b"MM\0*"
    return mark + struct.pack(order + "IH", 8, len(entries)) + rows + struct.pack(order + "I", next_directory) + data


def tiff_picture(width, height, strip_offset="0", strip_size=64, next_directory=0, count=1):
    return tiff([(256, 4, 1, width), (257, 4, 1, height), (258, 3, 1, 8), (259, 3, 1, 1), (262, 3, 1, 1),
                 (273, 4, count, strip_offset), (277, 3, 1, 1), (278, 4, 1, height), (279, 4, count, strip_size)],
                bytes(range(64)), next_directory)


def write_other_bombs(files):
    files.add("65535-by-65535.gif", b"GIF89a" + struct.pack("<HHBBB", 65_535, 65_535, 0, 0, 0) + b"," +
              struct.pack("<HHHHB", 0, 0, 65_535, 65_535, 0) + b"\x08\x01\x00\x00;", NO_TEXT)
    files.add("frames-without-end.gif", b"GIF89a" + struct.pack("<HHBBB", 8, 8, 0x80, 0, 0) + b"\0\0\0\xff\xff\xff" +
              (b"," + struct.pack("<HHHHB", 0, 0, 8, 8, 0) + b"\x02\x02\x4c\x01\x00") * 200_000, *DECODED_OR_DIED)
    files.add("good.tiff", tiff_picture(8, 8), CONTENT, is_good=True)
    for name, lies in (("strip-past-the-end", {"strip_offset": 0x7FFFFFFF}), ("strip-of-4-gib", {"strip_size": 0xFFFFFFFF}),
                       ("strips-without-number", {"count": 0xFFFFFFFF}), ("directories-in-a-loop", {"next_directory": 8})):
        files.add(name + ".tiff", tiff_picture(8, 8, **lies), *DECODED_OR_DIED)
    files.add("200000-by-200000.tiff", tiff_picture(200_000, 200_000), NO_TEXT)
    for name, width, height in (("huge", 0x7FFFFFFF, 0x7FFFFFFF), ("upside-down", 60_000, -60_000), ("negative", -8, 8),
                                ("nothing", 0, 0)):
        files.add(name + ".bmp", b"BM" + struct.pack("<IHHI", 54, 0, 0, 54) + struct.pack(
            "<IiiHHIIiiII", 40, width, height, 1, 24, 0, 0, 0, 0, 0, 0), NO_TEXT)
    picture = png(16, 16)
    files.add("255-pictures.ico", icon([(255 * 16 + 6, len(picture))] * 255, picture), *DECODED_OR_NOT)
    files.add("pictures-past-the-end.ico", icon([(0x7FFFFFFF, 0x7FFFFFFF)] * 255, b""), NO_TEXT)
    files.add("parts-without-end.icns", b"icns" + struct.pack(">I", 0xFFFFFFFF) + b"ic09\0\0\0\0" * 100_000, NO_TEXT)
    files.add("huge.tga", struct.pack("<BBBHHBHHHHBB", 0, 0, 10, 0, 0, 0, 0, 0, 65_535, 65_535, 32, 0) + b"\xff" * 50, NO_TEXT)
    files.add("map-past-the-end.tga", struct.pack("<BBBHHBHHHHBB", 255, 1, 1, 65_535, 65_535, 32, 0, 0, 8, 8, 8, 0), NO_TEXT)
    files.add("huge.exr", open_exr(0x7FFFFFFE), NO_TEXT)
    files.add("40000.exr", open_exr(39_999), NO_TEXT)
    for extension in ("heic", "avif"):
        files.add(f"grid-of-65535-tiles.{extension}", heif_grid(extension), NO_TEXT)
        files.add(f"boxes-in-boxes.{extension}", heif_nested(extension), NO_TEXT)
    # The largest canvas that the header can say (RFC 9649), and no data.
    files.add("largest-said.webp", b"RIFF" + struct.pack("<I", 22) + b"WEBPVP8X" + struct.pack("<I", 10) + bytes(4) +
              b"\xff" * 6, NO_TEXT)


def icon(pictures, data):
    rows = b"".join(struct.pack("<BBBBHHII", 16, 16, 0, 0, 1, 32, size, offset) for offset, size in pictures)
    return struct.pack("<HHH", 0, 1, len(pictures)) + rows + data


def open_exr(greatest):
    def attribute(name, kind, value):
        return name + b"\0" + kind + b"\0" + struct.pack("<I", len(value)) + value

    box = struct.pack("<4i", 0, 0, greatest, greatest)
    channels = b"R\0" + struct.pack("<iIii", 1, 0, 1, 1) + b"\0"
    return struct.pack("<II", 20000630, 2) + b"".join((
        attribute(b"channels", b"chlist", channels), attribute(b"compression", b"compression", b"\x03"),
        attribute(b"dataWindow", b"box2i", box), attribute(b"displayWindow", b"box2i", box),
        attribute(b"lineOrder", b"lineOrder", b"\0"), attribute(b"pixelAspectRatio", b"float", struct.pack("<f", 1)),
        attribute(b"screenWindowCenter", b"v2f", bytes(8)), attribute(b"screenWindowWidth", b"float", struct.pack("<f", 1)),
        b"\0"))


def box(kind, *content):
    content = b"".join(content)
    return struct.pack(">I", 8 + len(content)) + kind + content


def heif_grid(brand):
    """A picture said to be put together from 255 by 257 tiles of 512 by 512, each the same one without data."""
    tiles = 65_535
    tile_kind = b"av01" if brand == "avif" else b"hvc1"

    def item(number, kind):
        return box(b"infe", b"\2\0\0\0", struct.pack(">HH", number, 0), kind, b"\0")

    extents = struct.pack(">HHHII", 1, 0, 1, 0, 8) + struct.pack(">HHHII", 2, 0, 1, 0, 0)
    meta = box(
        b"meta", bytes(4), box(b"hdlr", bytes(8), b"pict", bytes(13)), box(b"pitm", bytes(4), struct.pack(">H", 1)),
        box(b"iinf", bytes(4), struct.pack(">H", 2), item(1, b"grid"), item(2, tile_kind)),
        box(b"iloc", bytes(4), b"\x44\x00", struct.pack(">H", 2), extents),
        box(b"iref", bytes(4), box(b"dimg", struct.pack(">HH", 1, tiles), struct.pack(">H", 2) * tiles)),
        box(b"iprp", box(b"ipco", box(b"ispe", bytes(4), struct.pack(">II", 255 * 512, 257 * 512))),
            box(b"ipma", bytes(4), struct.pack(">I", 1), struct.pack(">HBB", 1, 1, 1))))
    return box(b"ftyp", b"avif" if brand == "avif" else b"heic", bytes(4), b"mif1") + meta + box(b"mdat", bytes(8))


def heif_nested(brand):
    nested = b""
    for _ in range(10_000):
        nested = box(b"meta", bytes(4), nested)
    return box(b"ftyp", b"avif" if brand == "avif" else b"heic", bytes(4), b"mif1") + nested


def segment(marker, data):
    return b"\xff" + bytes([marker]) + struct.pack(">H", 2 + len(data)) + data


def huffman_tables():
    """Codes of 4 bits for the twelve sizes of a DC difference; "0" ends a block, "10" ends 16,384 blocks and more."""
    lengths = {4: range(12)}, {1: [0x00], 2: [0xE0]}
    for number, codes in enumerate(lengths):
        counts = bytes(len(codes.get(length, [])) for length in range(1, 17))
        yield segment(0xC4, bytes([number << 4]) + counts + bytes(value for values in codes.values() for value in values))


def entropy(bits):
    """The bits as bytes, filled up with ones, each 0xFF marked as data."""
    padded = bits + "1" * (-len(bits) % 8)
    return int(padded, 2).to_bytes(len(padded) // 8, "big").replace(b"\xff", b"\xff\0")


def jpeg(width, height, components=1, frame=0xC0, scans=None, more=b""):
    """A baseline picture of one colour, or the frame and scans that are given (ITU-T T.81)."""
    blocks = ((width + 7) // 8) * ((height + 7) // 8)
    ids = range(1, components + 1)
    head = struct.pack(">BHHB", 8, height, width, components) + b"".join(bytes([number, 0x11, 0]) for number in ids)
    if scans is None:
        scans = scan(ids, 0, 63, entropy("00000" * (blocks * components)))
    return (b"\xff\xd8" + more + segment(0xDB, b"\0" + b"\1" * 64) + segment(frame, head) + b"".join(huffman_tables()) +
            scans + b"\xff\xd9")


def scan(ids, first, last, data):
    return segment(0xDA, bytes([len(ids)]) + b"".join(bytes([number, 0]) for number in ids) + bytes([first, last, 0])) + data


def write_jpegs(files):
    chance = random.Random(3)
    whole = jpeg(256, 256)
    for percent in (25, 50, 90, 99):
        files.add(f"cut-at-{percent}-percent.jpg", whole[:len(whole) * percent // 100], *DECODED_OR_NOT)
    side = 4000
    blocks = (side // 8) ** 2
    # Each of the thousand scans walks over every block again: runs of 32,767 blocks that end at once.
    run = "10" + "1" * 14
    empty_scan = scan([1], 1, 63, entropy(run * (blocks // 32_767 + 1)))
    files.add("thousand-scans.jpg", jpeg(side, side, frame=0xC2, scans=scan([1], 0, 0, entropy("0000" * blocks)) +
                                         empty_scan * 1000), *DECODED_OR_DIED)
    adobe = segment(0xEE, b"Adobe" + struct.pack(">HHHB", 100, 0, 0, 0))
    files.add("cmyk.jpg", jpeg(64, 64, components=4, more=adobe), CONTENT)
    noise = bytes(chance.randrange(255) for _ in range(2000)).replace(b"\xff", b"\xfe")
    files.add("arithmetic.jpg", jpeg(64, 64, frame=0xC9, scans=scan([1], 0, 63, noise)), *DECODED_OR_NOT)
    files.add("noise.jpg", jpeg(512, 512, scans=scan([1], 0, 63, noise)), *DECODED_OR_NOT)
    files.add("65500-by-65500.jpg", jpeg(65_500, 65_500, scans=scan([1], 0, 63, b"\0")), NO_TEXT)
    files.add("no-height.jpg", jpeg(8, 0, scans=scan([1], 0, 63, b"\0")), NO_TEXT)
    files.add("only-comments.jpg", b"\xff\xd8" + segment(0xFE, bytes(65_000)) * 1000, NO_TEXT)
    files.add("no-bytes.jpg", b"", NO_TEXT)
    files.add("only-its-mark.jpg", b"\xff\xd8\xff", NO_TEXT)


def exif(entries, data=b"", next_directory=0):
    return segment(0xE1, b"Exif\0\0" + tiff(entries, data, next_directory))


def ascii_entry(tag, text, offset=0):
    return (tag, 2, len(text) + 1, str(offset))


def write_facts(files):
    def add(name, facts, *outcomes):
        files.add(name + ".jpg", jpeg(16, 16, more=facts), *(outcomes or (CONTENT,)), lines=3)

    make = "Make\nby\r\nsomebody\u2028else"
    add("directory-in-a-loop", exif([(0x10F, 2, 4, 0x41414100)], next_directory=8))
    add("exif-in-itself", exif([(0x8769, 4, 1, 8)]))
    add("make-of-three-lines", exif([ascii_entry(0x10F, make)], make.encode() + b"\0"))
    long = "M" * 10_000
    add("make-of-10000-characters", exif([ascii_entry(0x10F, long)], long.encode() + b"\0"))
    add("make-past-the-end", exif([(0x10F, 2, 0x7FFFFFFF, 0x7FFFFFFF)]))
    add("entries-without-number", segment(0xE1, b"Exif\0\0II*\0\x08\0\0\0\xff\xff" + bytes(100)))
    for name, date in (("zeros", "0000:00:00 00:00:00"), ("lines", "20\n4:1\n:3\n"), ("letters", "abcd:ef:gh ij")):
        # The date is in a directory of its own, which follows the entry that names it.
        inner = struct.pack("<HHHII", 1, 0x9003, 2, len(date) + 1, 26 + 18) + bytes(4) + date.encode() + b"\0"
        add(f"date-of-{name}", exif([(0x8769, 4, 1, "0")], inner))
    add("only-exif-mark", segment(0xE1, b"Exif\0\0"))
    add("direction-of-999", exif([(0x112, 3, 1, 999)]))
    note = tiff([(0x8769, 4, 1, "0")], struct.pack("<HHHII", 1, 0x927C, 7, 10 << 20, 26 + 18) + bytes(4) +
                b"Nikon\0\2\0\0\0II*\0\x08\0\0\0\xff\xff" + bytes(10 << 20))
    files.add("maker-note-of-10-mib.png", png(8, 8, more=chunk(b"eXIf", note)), CONTENT, lines=3)


def write_disguises(files):
    drawing = b'<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><text>' + SENTENCE.encode() + (
        f'</text><image href="file://{files.secret_path}"/><image href="{files.address}/x.png"/></svg>').encode()
    text = SENTENCE.encode()
    for extension in ("jpg", "jpeg", "jpe", "png", "webp", "gif", "heic", "heif", "heics", "tiff", "tif", "bmp", "avif", "tga",
                      "exr", "ico", "icns"):
        files.add(f"drawing-in-disguise.{extension}", drawing, NO_TEXT)
        files.add(f"text-in-disguise.{extension}", text, NO_TEXT)
        files.add(f"empty.{extension}", b"", NO_TEXT)
    files.add("png-in-disguise.jpg", png(8, 8), CONTENT)
    files.add("jpg-in-disguise.png", jpeg(16, 16), CONTENT)
    files.add("page-in-disguise.png", b"%PDF-1.7\n" + text, NO_TEXT)
    files.add("script-in-disguise.gif", b"push graphic-context\nimage over 0,0 0,0 'ephemeral:/etc/passwd'\n", NO_TEXT)
