// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/worker/FileReaders.h"
#include "platform/FileFlags.h"
#include <filesystem>

namespace Varlo {

/// Reads one file for the model, by the kind that its extension names, in this process and without any of its
/// protection: for tests and measurements. Blocks while it reads. Every failure is a case of the outcome.
/// The readers keep what they have loaded for the next file.
[[nodiscard]] Extraction extractContent(
    const std::filesystem::path &path, const FileFlags &flags, FileReaders &readers);

} // namespace Varlo
