// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/Notifier.h"
#include <optional>
#include <QDBusConnection>
#include <QObject>
#include <QStringList>

class QDBusMessage;

namespace Varlo {

/// Shows notifications through the service that the desktop has on the session bus.
class DesktopNotifier final : public QObject, public Notifier {
    Q_OBJECT
public:
    explicit DesktopNotifier(const QDBusConnection &bus);

    void show(const Notification &notification) override;
    void close() override;
    void openWindow(const std::vector<SuggestedFile> &files) override;

private slots:
    void takeAction(uint id, const QString &actionId);
    void takeToken(uint id, const QString &token);
    void takeClosing(uint id, uint reason);
    void forget();

private:
    void askForCapabilities();
    void send();
    void openOnceItIsThere(const QDBusMessage &call);
    [[nodiscard]] QDBusMessage notifyCall(const Notification &notification) const;

    QDBusConnection m_bus;
    std::optional<QStringList> m_capabilities; ///< absent before the service was asked
    std::optional<Notification> m_next; ///< to be shown once the call under way is answered
    bool m_isCalling = false;
    uint m_id = 0; ///< of the one that is shown; 0 for none
    QString m_token; ///< what lets the window come to the front after an action
};

} // namespace Varlo
