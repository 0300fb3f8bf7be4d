// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/readPDF.h"
#include "extraction/recognition/TesseractRecognizer.h"
#include "platform/linux/openRegularFile.h"

#include <cstdio>

using namespace Varlo;

// Reads the one PDF it is given and prints its text, without anything else that a program does: what reading itself
// costs. The engine is loaded only where it is needed.
int main(int argc, char **argv)
{
    const auto file = openRegularFile(argc == 2 ? argv[1] : "");
    if (!file) {
        std::fputs("usage: read-pdf FILE\n", stderr);
        return 2;
    }
    auto outcome = readPDF(*file, nullptr, [] {});
    if (std::holds_alternative<NeedsRecognition>(outcome)) {
        TesseractRecognizer recognizer;
        outcome = readPDF(*file, &recognizer, [] {});
    }
    const auto *const content = std::get_if<FileContent>(std::get_if<Extraction>(&outcome));
    const auto *const text = content ? std::get_if<TextContent>(content) : nullptr;
    if (!text)
        return 1;
    std::puts(text->text.toUtf8().constData());
    return 0;
}
