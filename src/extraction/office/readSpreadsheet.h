// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// The text of a spreadsheet (xlsx): its shared strings; where these are fewer than 20 characters, they and the text
/// that stands in the sheets themselves. Numbers and formulas are not read. NoTextFound for a file that is none.
[[nodiscard]] Extraction readSpreadsheet(const FileDescriptor &file);

} // namespace Varlo
