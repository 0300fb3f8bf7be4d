// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FinderPermission.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

namespace Varlo {

using namespace Qt::StringLiterals;

FinderPermission finderPermission(AutomationHost *host, bool askUser)
{
    if (!host)
        return FinderPermission::Denied;
    const std::optional<QByteArray> finder = host->describeTarget(u"com.apple.finder"_s);
    if (!finder)
        return FinderPermission::Denied;
    constexpr quint32 anyEvent = 0x2A2A2A2A; // '****', Apple's typeWildCard
    switch (host->permissionStatus(*finder, anyEvent, anyEvent, askUser)) {
    case AutomationHost::noError:
        return FinderPermission::Granted;
    case AutomationHost::consentNeeded:
        return FinderPermission::NotDetermined;
    default:
        return FinderPermission::Denied;
    }
}

QCoro::Task<FinderPermission> requestFinderPermission(AutomationHost *host)
{
    const QFuture<FinderPermission> answer = QtConcurrent::run(finderPermission, host, true);
    co_return co_await answer;
}

} // namespace Varlo
