// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileFlags.h"
#include <filesystem>

namespace Varlo {

/// Reads one file for the model, by the kind that its extension names. Blocks while it reads; safe on any thread,
/// several calls at once. Every failure is a case of the outcome: Unreadable when the file cannot be opened or its
/// first byte not be read, in the system's words or, for a file whose content is online only, in ours.
[[nodiscard]] Extraction extractContent(const std::filesystem::path &path, const FileFlags &flags);

} // namespace Varlo
