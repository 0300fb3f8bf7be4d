# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""File names, as bytes, that somebody's quoting could get wrong."""
NAMES = [
    b"plain.txt", b"two  spaces .txt", b" leading.txt", b"it's 'quoted'.txt", b'a "word".txt', b"line\nbreak.txt",
    b"tab\there.txt", b"-rf.txt", b"--yes.txt", b"$HOME `id` $(id).txt", b"back\\slash\\.txt", b"%F %U %f %% %k.txt",
    b"#hash.txt", b"~.txt", b"[a]*?{b,c}.txt", b"a;b&c|d>e<f.txt", b"!bang.txt", b"caf\xe9.txt",
    "naïve \u202e文.txt".encode(),
]
