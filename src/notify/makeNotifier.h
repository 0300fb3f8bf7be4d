// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/Notifier.h"
#include <memory>

namespace Varlo {

/// The desktop's notifications (https://specifications.freedesktop.org/notification-spec/1.2/). The client and Qt's
/// D-Bus library are loaded here. Null where the session has no bus, or where the client is not installed.
[[nodiscard]] std::unique_ptr<Notifier> makeNotifier();

/// What the module exports. The name changes with the interface, so that another version's module is refused.
using NotifierEntry = Notifier *(*)();
inline constexpr char notifierEntryName[] = "varloNotifier2";

} // namespace Varlo
