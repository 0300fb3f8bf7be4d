// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/openForReading.h"

#include "platform/linux/openRegularFile.h"
#include "platform/linux/retryInterrupted.h"
#include <QCoreApplication>
#include <unistd.h>

namespace Varlo {

static Message cloudPlaceholderMessage()
{
    //: Error for cloud placeholder files whose content is not on this computer.
    return { "Extraction",
        QT_TRANSLATE_NOOP(
            "Extraction", "This file is online-only. Download it in its cloud app first, then try again.") };
}

static Result<bool, SystemError> hasFirstByte(const FileDescriptor &file)
{
    char byte = 0;
    const ssize_t count = retryInterrupted([&] { return ::pread(file.get(), &byte, 1, 0); });
    if (count < 0)
        return tl::unexpected(SystemError::latest());
    return count == 1;
}

Result<FileDescriptor, Unreadable> openForReading(const std::filesystem::path &path, const FileFlags &flags)
{
    const auto unreadable = [&](const OpenError &error) {
        return tl::unexpected(Unreadable { flags.isOnlineOnly(path) ? cloudPlaceholderMessage() : description(error) });
    };
    auto file = openRegularFile(path);
    if (!file)
        return unreadable(file.error());
    const auto firstByte = hasFirstByte(*file);
    if (!firstByte)
        return unreadable(firstByte.error());
    if (!*firstByte && flags.isOnlineOnly(path))
        return tl::unexpected(Unreadable { cloudPlaceholderMessage() });
    return std::move(*file);
}

} // namespace Varlo
