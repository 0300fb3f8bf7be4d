// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Session.h"
#include <vector>

namespace Varlo {

/// What one call of `rename` came to.
struct RenameSummary {
    std::vector<QString> entryIds; ///< of the renames made, as the history has them, oldest first
    QStringList newNames; ///< safe to show
    int failedCount = 0;
    QString failure; ///< why the first of them failed, or why nothing could be tried; safe to show
};

/// Tells it in a notification of the desktop whose "Undo" takes these very renames back. Returns once the user has
/// chosen or closed it, or after ten minutes, when nobody looks for it any more. Complains where the session has none.
void announceRenames(const RenameSummary &summary, Session &session);

} // namespace Varlo
