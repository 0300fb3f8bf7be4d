// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/office/OfficePackage.h"

namespace Varlo {

/// The text of a Word document as a word processor shows it: of its main part, whatever that is called, with runs
/// joined as they stand and white space for paragraphs, tabs and breaks. A text box is read once, though it may be
/// stored in two ways; deleted and moved-away text and the instructions of fields are left out. Absent when there is no
/// main part, or it cannot be read.
[[nodiscard]] std::optional<QString> importWordDocument(OfficePackage &package);

} // namespace Varlo
