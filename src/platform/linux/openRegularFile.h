// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Message.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <variant>

namespace Varlo {

/// A folder, FIFO, socket or device.
struct NotARegularFile {
    bool operator==(const NotARegularFile &) const = default;
};
using OpenError = std::variant<NotARegularFile, SystemError>;

/// Opens a file for reading and never waits for anybody: a FIFO without a writer or a terminal is refused unopened.
/// Follows symbolic links. The descriptor is closed on exec.
[[nodiscard]] Result<FileDescriptor, OpenError> openRegularFile(const std::filesystem::path &path);

/// The error in words for the user.
[[nodiscard]] Message description(const OpenError &error);

} // namespace Varlo
