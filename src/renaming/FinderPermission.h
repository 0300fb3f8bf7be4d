// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AutomationHost.h"
#include <QCoroTask>

namespace Varlo {

/// Whether Varlo may control Finder.
enum class FinderPermission {
    Granted,
    Denied, ///< also where the system has no automation at all
    NotDetermined, ///< the user has not been asked yet
};

/// `host` may be null. With `askUser` the call may block until the user has answered the system's question:
/// `requestFinderPermission` does that off the caller's thread.
[[nodiscard]] FinderPermission finderPermission(AutomationHost *host, bool askUser);

/// Lets the system ask the user, on a thread of its own, and continues on the caller's. `host` may be null, and
/// outlives the answer.
[[nodiscard]] QCoro::Task<FinderPermission> requestFinderPermission(AutomationHost *host);

} // namespace Varlo
