// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Reads the text of a Rich Text Format file (RTF 1.9.1) as a reader of the page sees it: with the text of lists,
/// tables, footnotes, text boxes and field results, without running heads, comments, hidden and deleted text. Damage is
/// passed over; what was read before and behind it counts. Takes time in proportion to the size, the same memory
/// whatever the file, and stops as soon as the text is long enough. A file that does not begin with "{\rtf" or cannot
/// be read is NoTextFound.
[[nodiscard]] Extraction readRichText(const FileDescriptor &file);

} // namespace Varlo
