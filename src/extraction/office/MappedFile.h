// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <QByteArrayView>

namespace Varlo {

/// A file's bytes in memory, read by the system as they are looked at. Somebody who cuts the file short meanwhile ends
/// the process (SIGBUS), so this is for a process that may die.
class MappedFile {
public:
    /// The descriptor may be closed afterwards.
    explicit MappedFile(const FileDescriptor &file);
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;
    ~MappedFile();

    /// Empty when the file is, or cannot be mapped.
    [[nodiscard]] QByteArrayView bytes() const { return m_bytes; }

private:
    QByteArrayView m_bytes;
};

} // namespace Varlo
