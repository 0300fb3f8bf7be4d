// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/extractContent.h"

#include "extraction/readPlainText.h"
#include "extraction/supportedExtensions.h"
#include "platform/linux/openRegularFile.h"
#include "platform/linux/retryInterrupted.h"
#include "platform/pathExtension.h"
#include <algorithm>
#include <QCoreApplication>
#include <span>
#include <unistd.h>

namespace Varlo {

namespace {
struct KindOfFile {
    std::span<const std::string_view> extensions;
    Extraction (*read)(const FileDescriptor &file);
};
} // namespace

// The kinds that can be read. What has no row is NotSupportedYet.
static constexpr std::array kindsOfFile {
    KindOfFile { textExtensions, [](const FileDescriptor &file) { return readPlainText(file); } },
};

static QString cloudPlaceholderMessage()
{
    //: Error for cloud placeholder files whose content is not on this computer.
    return QCoreApplication::translate(
        "Extraction", "This file is online-only. Download it in its cloud app first, then try again.");
}

static Extraction readByKind(const FileDescriptor &file, std::string_view extension)
{
    for (const KindOfFile &kind : kindsOfFile) {
        if (std::find(kind.extensions.begin(), kind.extensions.end(), extension) != kind.extensions.end())
            return kind.read(file);
    }
    return NotSupportedYet {};
}

/// Some files open and then refuse to be read.
static Result<bool, SystemError> hasFirstByte(const FileDescriptor &file)
{
    char byte = 0;
    const ssize_t count = retryInterrupted([&] { return ::pread(file.get(), &byte, 1, 0); });
    if (count < 0)
        return tl::unexpected(SystemError::latest());
    return count == 1;
}

Extraction extractContent(const std::filesystem::path &path, const FileFlags &flags)
{
    const auto unreadable = [&](const OpenError &error) {
        return Unreadable { flags.isOnlineOnly(path) ? cloudPlaceholderMessage() : description(error) };
    };
    const auto file = openRegularFile(path);
    if (!file)
        return unreadable(file.error());
    const auto firstByte = hasFirstByte(*file);
    if (!firstByte)
        return unreadable(firstByte.error());
    if (!*firstByte && flags.isOnlineOnly(path))
        return Unreadable { cloudPlaceholderMessage() };
    return readByKind(*file, lowerCaseExtension(path));
}

} // namespace Varlo
