// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"
#include "cli/commands.h"
#include "extraction/worker/extractContent.h"
#include <clocale>
#include <QCoreApplication>

using namespace Varlo;

namespace {

class ReaderInThisProcess final : public ContentReader {
public:
    QCoro::Task<Extraction> read(std::filesystem::path path) override
    {
        Extraction extraction = extractContent(path, m_flags, m_readers);
        co_return extraction;
    }

private:
    LinuxFileFlags m_flags;
    FileReaders m_readers;
};

} // namespace

// "varlo extract" as it would be without workers: the same command, which decodes every file by itself.
int main(int argc, char **argv)
{
    std::setlocale(LC_ALL, "");
    Session session(processEnvironment());
    CommandLine commandLine;
    const Result<Command, UsageError> command
        = commandLine.parse({ argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0) });
    const auto *const extract = command ? std::get_if<ExtractCommand>(&*command) : nullptr;
    if (!extract) {
        std::fputs("usage: extract-in-process extract [--json] -- FILE...\n", stderr);
        return 2;
    }
    const QCoreApplication application(argc, argv);
    session.preferences();
    ReaderInThisProcess reader;
    return static_cast<int>(run(*extract, session.terminal(), reader));
}
