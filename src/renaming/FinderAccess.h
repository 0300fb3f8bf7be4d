// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FinderPermission.h"
#include <QObject>

namespace Varlo {

/// Whether Varlo may control Finder, as views show it. Lives on the main thread.
class FinderAccess final : public QObject {
    Q_OBJECT
    /// Whether the system has a Finder to control at all.
    Q_PROPERTY(bool isOffered READ isOffered CONSTANT)
    Q_PROPERTY(bool isGranted READ isGranted NOTIFY isGrantedChanged)
public:
    /// `host` may be null, and outlives this object.
    explicit FinderAccess(AutomationHost *host, QObject *parent = nullptr);

    [[nodiscard]] bool isOffered() const { return m_host != nullptr; }
    /// As of the latest call below; false before the first.
    [[nodiscard]] bool isGranted() const { return m_isGranted; }
    /// Looks at what was granted elsewhere meanwhile; never asks the user.
    Q_INVOKABLE void refresh();
    /// Lets the system ask the user, where it has to.
    Q_INVOKABLE void request();

signals:
    void isGrantedChanged();

private:
    QCoro::Task<void> ask();
    void setPermission(FinderPermission permission);

    AutomationHost *m_host;
    bool m_isGranted = false;
};

} // namespace Varlo
