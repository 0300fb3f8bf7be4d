// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// The text of a presentation (pptx): its slides by their numbers, without the speaker's notes. NoTextFound for a file
/// that is none.
[[nodiscard]] Extraction readPresentation(const FileDescriptor &file);

} // namespace Varlo
