// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/office/OfficePackage.h"

namespace Varlo {

/// `text`, followed by the text of each of these parts with a space before it, until it has the 8000 characters that
/// are kept of a text, or so many bytes that no more are; further parts are not read. A part that cannot be read adds
/// nothing. Characters are counted part by part.
[[nodiscard]] QString joinPartTexts(QString text, const QStringList &partNames, OfficePackage &package);

} // namespace Varlo
