// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/pdf/TextRecognizer.h"
#include "platform/FileDescriptor.h"
#include <chrono>
#include <functional>
#include <variant>

namespace Varlo {

/// The pages must be looked at, and there is no recognizer.
struct NeedsRecognition {
    bool operator==(const NeedsRecognition &) const = default;
};

/// The text layer of a PDF (ISO 32000) where it reads like language; else what `recognizer` makes out on its pages,
/// rendered at twice their points. No more pages are read than the 8000 characters kept need. With a null `recognizer`
/// a document whose pages must be looked at is NeedsRecognition.
/// `reportProgress` is called after each page read and each page recognized. Once `limit` has passed, what was read
/// so far counts as the whole; the default leaves a minute for the page in hand where ten are allowed in all.
/// What cannot be opened, needs a password or holds fewer than 20 characters is NoTextFound.
[[nodiscard]] std::variant<Extraction, NeedsRecognition> readPDF(const FileDescriptor &file, TextRecognizer *recognizer,
    const std::function<void()> &reportProgress, std::chrono::milliseconds limit = std::chrono::minutes(9));

} // namespace Varlo
