// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Message.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <QByteArray>

namespace Varlo {

/// Why one of Varlo's own files gave no bytes.
struct StateFileError {
    enum class Kind {
        Missing,
        DanglingLink, ///< a link is there, what it leads to is not
        NotRegular, ///< a folder, a FIFO, a socket or a device
        TooLarge,
        System, ///< `error` says what
    };
    Kind kind = Kind::System;
    SystemError error;

    /// For the user.
    [[nodiscard]] Message description() const;
};

/// The whole content of a regular file of at most `sizeLimit` bytes. Never waits for a FIFO or a device.
[[nodiscard]] Result<QByteArray, StateFileError> readStateFile(const std::filesystem::path &path, qint64 sizeLimit);

} // namespace Varlo
