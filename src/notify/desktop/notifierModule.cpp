// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "notify/desktop/DesktopNotifier.h"
#include "notify/makeNotifier.h"

using namespace Varlo;

extern "C" Q_DECL_EXPORT Notifier *varloNotifier2()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? new DesktopNotifier(bus) : nullptr; // whoever asked for it owns it
}
