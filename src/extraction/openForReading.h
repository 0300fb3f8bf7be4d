// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"
#include "platform/FileFlags.h"
#include "platform/Result.h"
#include <filesystem>

namespace Varlo {

/// Opens a file and makes sure that it can be read, as some open and then refuse. May block; safe on any thread.
/// The error tells why in the system's words or, for a file whose content is online only, in ours.
[[nodiscard]] Result<FileDescriptor, Unreadable> openForReading(
    const std::filesystem::path &path, const FileFlags &flags);

} // namespace Varlo
