// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/extractContent.h"

#include "platform/Result.h"
#include <cstdio>

using namespace Varlo;

struct DiskFlags final : FileFlags {
    bool isOnlineOnly(const std::filesystem::path &) const override { return false; }
};

// Reads the one file it is given and prints what came of it, without anything else that a program does: what reading
// itself costs.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: extract-one FILE\n", stderr);
        return 2;
    }
    const auto print = [](const QString &text) {
        std::puts(text.toUtf8().constData());
        return 0;
    };
    return std::visit(Overloaded { [&](const FileContent &content) {
                                      const auto *const text = std::get_if<TextContent>(&content);
                                      return print(text ? text->text : QString());
                                  },
                          [&](const Unreadable &unreadable) { return print(unreadable.message) + 1; },
                          [](NoTextFound) { return 1; }, [](NotSupportedYet) { return 1; } },
        extractContent(argv[1], DiskFlags()));
}
