// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/readPDF.h"

#include "extraction/worker/ReaderModules.h"
#include "platform/linux/loadModule.h"
#include "platform/linux/openRegularFile.h"
#include <cstdio>
#include <QCoreApplication>

using namespace Varlo;
using namespace Qt::StringLiterals;

// Reads the one PDF it is given and prints its text, without anything else that a program does: what reading itself
// costs. The engine, and the hundred libraries that it takes, are loaded only where Varlo loads them.
int main(int argc, char **argv)
{
    const auto file = openRegularFile(argc == 2 ? argv[1] : "");
    if (!file) {
        std::fputs("usage: read-pdf FILE\n", stderr);
        return 2;
    }
    auto outcome = readPDF(*file, nullptr, [] {});
    if (std::holds_alternative<NeedsRecognition>(outcome)) {
        const QCoreApplication application(argc, argv); // knows where the modules are
        RecognitionModule module;
        if (const auto fill
            = reinterpret_cast<RecognitionModuleEntry>(loadModule("varlo-recognition"_L1, recognitionModuleEntryName)))
            fill(module);
        outcome = readPDF(*file, module.recognizer.get(), [] {});
    }
    const auto *const content = std::get_if<FileContent>(std::get_if<Extraction>(&outcome));
    const auto *const text = content ? std::get_if<TextContent>(content) : nullptr;
    if (!text)
        return 1;
    std::puts(text->text.toUtf8().constData());
    return 0;
}
