// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/SuggestedFile.h"
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <vector>

namespace Varlo {

/// The one window of a desktop session, which a second start hands its files to. By the session bus, through
/// org.freedesktop.Application (version 1 of freedesktop.org's interface). Without a bus every start is the first.
class SingleInstance final : public QObject {
    Q_OBJECT
public:
    enum class Role {
        First, ///< shows the window and is told what later starts want
        Second, ///< the first one has been told
        Unanswered, ///< the first one is there and does not answer
    };
    /// What a start was asked for.
    struct Request {
        std::vector<std::filesystem::path> files;
        std::vector<SuggestedFile> suggestions; ///< names for some of the files
        /// What lets a window come to the front: "activation-token" (Wayland) and "desktop-startup-id" (X11).
        QVariantMap platformData;
    };

    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Becomes the first instance, or tells the first one of the request.
    [[nodiscard]] Role begin(const Request &request);
    /// Is the first one no more: a later start shows a window of its own.
    void end();
    [[nodiscard]] const QDBusConnection &bus() const { return m_bus; }

signals:
    /// The window is to come to the front, with these files added to it.
    void requested(const Varlo::SingleInstance::Request &request);
    /// One of actionNames().
    void actionRequested(const QString &name, const QVariantMap &platformData);

private:
    enum class HandedOver { Yes, NobodyThere, NoAnswer };
    [[nodiscard]] HandedOver handOver(const Request &request);

    QDBusConnection m_bus;
};

} // namespace Varlo
