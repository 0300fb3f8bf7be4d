// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Terminal.h"
#include "workflow/FileItem.h"

namespace Varlo {

/// What came of a file: the name suggested for it, or in words why there is none.
[[nodiscard]] TableCell suggestionCell(const FileItem &item);

} // namespace Varlo
