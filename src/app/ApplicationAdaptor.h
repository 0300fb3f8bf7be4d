// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SingleInstance.h"
#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QStringList>

namespace Varlo {

/// SingleInstance on the bus. The names are those of the interface.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit ApplicationAdaptor(SingleInstance &instance);

public slots:
    void Activate(const QVariantMap &platform_data);
    /// Addresses of files, of which those that are not on this computer are passed over; names for them may stand in
    /// the platform data (suggestionsKey).
    void Open(const QStringList &uris, const QVariantMap &platform_data);
    /// "settings", "history" or "check-for-updates", without a parameter; anything else is answered with an error.
    void ActivateAction(const QString &action_name, const QVariantList &parameter, const QVariantMap &platform_data,
        const QDBusMessage &message);

private:
    SingleInstance &m_instance;
};

} // namespace Varlo
