// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/extractContent.h"

#include "platform/Result.h"
#include <cstdio>
#include <QCoreApplication>

using namespace Varlo;

struct DiskFlags final : FileFlags {
    bool isOnlineOnly(const std::filesystem::path &) const override { return false; }
};

static bool print(const QString &text)
{
    std::puts(text.toUtf8().constData());
    return true;
}

static bool print(const FileContent &content)
{
    return std::visit(Overloaded { [](const TextContent &text) { return print(text.text); },
                          [](const ImageContent &image) { return print(image.metadata.value_or(QString())); } },
        content);
}

// Reads the files it is given, one after the other in this process, and prints what came of them, without anything else
// that a program does: what reading itself costs.
int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fputs("usage: extract-one FILE...\n", stderr);
        return 2;
    }
    const QCoreApplication application(argc, argv); // knows where the modules are
    FileReaders readers;
    bool isEverythingRead = true;
    for (int file = 1; file < argc; ++file) {
        const bool isRead
            = std::visit(Overloaded { [](const FileContent &content) { return print(content); },
                             [](const Unreadable &unreadable) { return print(unreadable.message) && false; },
                             [](NoTextFound) { return false; }, [](NotSupportedYet) { return false; } },
                extractContent(argv[file], DiskFlags(), readers));
        isEverythingRead = isEverythingRead && isRead;
    }
    return isEverythingRead ? 0 : 1;
}
