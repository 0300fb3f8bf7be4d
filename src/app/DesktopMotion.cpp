// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DesktopMotion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
static constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
static constexpr auto interface = "org.freedesktop.portal.Settings"_L1;

struct DesktopSetting {
    QString group;
    QString key;
};
static const QList<DesktopSetting> &settings()
{
    static const QList<DesktopSetting> all { { u"org.gnome.desktop.interface"_s, u"enable-animations"_s },
        { u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s } };
    return all;
}

DesktopMotion::DesktopMotion(QObject *parent)
    : QObject(parent)
{
}

void DesktopMotion::follow(QDBusConnection bus)
{
    bus.connect(service, path, interface, u"SettingChanged"_s, this, SLOT(take(QString, QString, QDBusVariant)));
    for (const DesktopSetting &setting : settings()) {
        QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
        question << setting.group << setting.key;
        auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, setting, answer] {
            answer->deleteLater();
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (!reply.isError())
                take(setting.group, setting.key, reply.value());
        });
    }
}

void DesktopMotion::take(const QString &group, const QString &key, const QDBusVariant &value)
{
    QVariant inner = value.variant();
    while (inner.metaType() == QMetaType::fromType<QDBusVariant>()) // Read() wraps its answer twice
        inner = inner.value<QDBusVariant>().variant();
    const bool wasWanted = isWanted();
    if (group == settings()[0].group && key == settings()[0].key && inner.metaType() == QMetaType::fromType<bool>())
        m_isWantedByGnome = inner.toBool();
    bool isNumber = false;
    const double factor = inner.toDouble(&isNumber);
    if (group == settings()[1].group && key == settings()[1].key && isNumber)
        m_isWantedByKde = factor > 0;
    if (isWanted() != wasWanted)
        emit changed();
}

} // namespace Varlo
