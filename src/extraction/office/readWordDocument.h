// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// The text of a Word document (docx): its main part alone, without headers, footers, footnotes and comments. The runs
/// of "word/document.xml" are joined by spaces. Where that gives no text, importWordDocument() is tried.
/// NoTextFound for a file that is none.
[[nodiscard]] Extraction readWordDocument(const FileDescriptor &file);

} // namespace Varlo
