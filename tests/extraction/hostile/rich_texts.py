# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Rich text (RTF)."""
from hostile_files import CONTENT, NO_TEXT, SENTENCE


def write(files):
    def add(name, body, *outcomes, head=SENTENCE.encode(), **expected):
        outcomes = outcomes or (CONTENT,)
        if CONTENT in outcomes:
            expected.setdefault("text", SENTENCE)
        files.add(name + ".rtf", [b"{\\rtf1\\ansi " + head, *([body] if isinstance(body, bytes) else body), b"}"],
                  *outcomes, **expected)

    million = 1_000_000
    add("good", b"", is_good=True)
    add("million-groups", b"{" * million + b"deep" + b"}" * million + b" End.", text=SENTENCE + " End.")
    add("million-open-groups", b"{\\b " * million)
    add("million-ends", b"}" * million)
    add("binary-past-the-end", b"\\bin2147483647 lost")
    add("binary-of-less-than-nothing", b"\\bin-2147483648  kept.", text=SENTENCE + " kept.")
    add("unicode-beyond-all-bounds", b"\\u999999999999999999999?\\u-999999999999999999999?")
    add("unicode-halves", b"\\u-10179?" * 100_000)
    add("endless-fallback", b"\\uc2147483647\\u32 " + b"x" * million)
    add("endless-word", b"\\" + b"a" * (10 * million))
    add("endless-number", b"\\par" + b"9" * (10 * million))
    add("fonts", b"{\\fonttbl" + b"".join(b"{\\f%d\\fcharset%d x;}" % (i * 4096, i % 256) for i in range(200_000)) + b"}")
    add("font-with-every-byte", b"\\f1\\'e9\\f2\\'93" * 200_000)
    add("picture-of-100-mb", [b"{\\pict\\pngblip ", *[b"89504e47" * 131_072] * 100, b"}"])
    add("object", b"{\\object\\objupdate{\\*\\objclass Package}{\\*\\objdata 0105000002000000}{\\result }}")
    add("fetching-fields", f'{{\\field{{\\*\\fldinst INCLUDETEXT "{files.secret_path}"}}}}'
                           f'{{\\field{{\\*\\fldinst INCLUDEPICTURE "{files.address}/x.png"}}}}'.encode())
    add("template", f"{{\\*\\template {files.address}/x.dot}}".encode())
    add("only-a-picture", b"{\\pict 00}", NO_TEXT, head=b"")
    add("sparse", [10**10])
    files.add("word-in-disguise.rtf", bytes.fromhex("d0cf11e0a1b11ae1") + bytes(5000), NO_TEXT)
    files.add("text-in-disguise.rtf", SENTENCE.encode(), NO_TEXT)
    files.add("empty.rtf", b"", NO_TEXT)
    files.add("only-its-mark.rtf", b"{\\rtf", NO_TEXT)
