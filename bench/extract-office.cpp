// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/readPresentation.h"
#include "extraction/office/readSpreadsheet.h"
#include "extraction/office/readWordDocument.h"

#include "platform/linux/openRegularFile.h"
#include "platform/pathExtension.h"
#include <cstdio>
#include <map>

using namespace Varlo;

// Reads the one office document it is given and prints its text, without anything else that a program does: what
// reading itself costs.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: extract-office FILE\n", stderr);
        return 2;
    }
    const std::map<std::string_view, Extraction (*)(const FileDescriptor &)> readers {
        { "docx", readWordDocument },
        { "xlsx", readSpreadsheet },
        { "pptx", readPresentation },
    };
    const std::filesystem::path path(argv[1]);
    const std::string extension = lowerCaseExtension(path);
    const auto reader = readers.find(extension);
    const auto file = openRegularFile(path);
    if (reader == readers.end() || !file)
        return 1;
    const Extraction extraction = reader->second(*file);
    const auto *const content = std::get_if<FileContent>(&extraction);
    const auto *const text = content ? std::get_if<TextContent>(content) : nullptr;
    if (!text)
        return 1;
    std::puts(text->text.toUtf8().constData());
    return 0;
}
