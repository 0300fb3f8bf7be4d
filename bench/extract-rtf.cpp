// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/readRichText.h"

#include <cstdio>
#include <fcntl.h>

using namespace Varlo;

// Reads the one rich text file it is given, and prints its text, without anything else that a program does.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: extract-rtf FILE\n", stderr);
        return 2;
    }
    const FileDescriptor file(::open(argv[1], O_RDONLY | O_CLOEXEC));
    const Extraction extraction = readRichText(file);
    const auto *const content = std::get_if<FileContent>(&extraction);
    const auto *const text = content ? std::get_if<TextContent>(content) : nullptr;
    if (!text)
        return 1;
    std::puts(text->text.toUtf8().constData());
    return 0;
}
