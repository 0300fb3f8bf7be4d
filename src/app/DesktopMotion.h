// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusVariant>
#include <QObject>

class QDBusConnection;

namespace Varlo {

/// Whether the desktop wants things to move, by the settings portal (org.freedesktop.portal.Settings, version 1).
/// GNOME and those that follow it switch animations off; KDE makes them last no time at all.
class DesktopMotion final : public QObject {
    Q_OBJECT
public:
    explicit DesktopMotion(QObject *parent = nullptr);

    /// Asks, without waiting, and is told of changes. A desktop without the portal wants motion.
    void follow(QDBusConnection bus);
    [[nodiscard]] bool isWanted() const { return m_isWantedByGnome && m_isWantedByKde; }

signals:
    void changed();

private slots:
    void take(const QString &group, const QString &key, const QDBusVariant &value);

private:
    bool m_isWantedByGnome = true;
    bool m_isWantedByKde = true;
};

} // namespace Varlo
