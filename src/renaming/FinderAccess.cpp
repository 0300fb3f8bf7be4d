// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FinderAccess.h"

#include <QPointer>

namespace Varlo {

FinderAccess::FinderAccess(AutomationHost *host, QObject *parent)
    : QObject(parent)
    , m_host(host)
{
}

void FinderAccess::refresh() { setPermission(finderPermission(m_host, false)); }

void FinderAccess::request() { ask(); }

QCoro::Task<void> FinderAccess::ask()
{
    const QPointer<FinderAccess> self = this;
    const FinderPermission permission = co_await requestFinderPermission(m_host);
    if (self)
        setPermission(permission);
}

void FinderAccess::setPermission(FinderPermission permission)
{
    const bool isGranted = permission == FinderPermission::Granted;
    if (m_isGranted == isGranted)
        return;
    m_isGranted = isGranted;
    emit isGrantedChanged();
}

} // namespace Varlo
