// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"
#include "cli/describe/completions.h"
#include "cli/describe/manualPages.h"
#include <filesystem>
#include <fstream>
#include <iostream>
#include <QDate>
#include <QLocale>

using namespace Varlo;

static bool write(const std::filesystem::path &path, const std::string &text)
{
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
        std::cerr << "varlo-describe: " << path.native() << " could not be written\n";
    return !file.fail();
}

/// varlo-describe FOLDER DATE: writes the manual pages and the completions below FOLDER, as they are laid out below
/// /usr/share. DATE is the manual's, as 2026-11-22.
int main(int argumentCount, char **arguments)
{
    const QDate date
        = argumentCount == 3 ? QDate::fromString(QString::fromLocal8Bit(arguments[2]), Qt::ISODate) : QDate();
    if (!date.isValid()) {
        std::cerr << "usage: varlo-describe FOLDER DATE\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    const CommandLine commandLine;
    const CommandDescription root = describe(commandLine.description());
    bool isWhole = write(folder / "bash-completion" / "completions" / "varlo", bashCompletion(root))
        && write(folder / "zsh" / "vendor-completions" / "_varlo", zshCompletion(root))
        && write(folder / "fish" / "vendor_completions.d" / "varlo.fish", fishCompletion(root));
    const std::string written = QLocale::c().toString(date, QStringLiteral("MMMM d, yyyy")).toStdString();
    for (const auto &[name, page] : manualPages(root, written, VARLO_VERSION))
        isWhole = isWhole && write(folder / "man" / "man1" / name, page);
    return isWhole ? 0 : 1;
}
