// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"
#include <chrono>

namespace Varlo {

/// Reads a file of UTF-8 text whole, since one wrong byte anywhere makes it no text, in the same memory whatever its
/// size. The file may change meanwhile. Its holes are NUL characters, skipped where they cannot change the outcome.
/// A file that goes on `endlessLimit` after all that it had at the start was read (as some below /proc do), one that
/// cannot be read, and one that is not UTF-8 are NoTextFound.
[[nodiscard]] Extraction readPlainText(
    const FileDescriptor &file, std::chrono::milliseconds endlessLimit = std::chrono::seconds(20));

} // namespace Varlo
