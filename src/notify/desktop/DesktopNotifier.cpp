// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "notify/desktop/DesktopNotifier.h"

#include "notify/suggestionsText.h"
#include "platform/fileUri.h"
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>
#include <spawn.h>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr auto service = "org.freedesktop.Notifications"_L1;
static constexpr auto path = "/org/freedesktop/Notifications"_L1;
static constexpr auto applicationId = "com.varlo.Varlo"_L1;
static constexpr int callLimitMs = 5000; // the bus starts the service first, if need be
static constexpr int openLimitMs = 25000; // likewise the window

static QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(service, path, service, method);
}

DesktopNotifier::DesktopNotifier(const QDBusConnection &bus)
    : m_bus(bus)
{
    m_bus.connect(service, path, service, u"ActionInvoked"_s, this, SLOT(takeAction(uint, QString)));
    m_bus.connect(service, path, service, u"ActivationToken"_s, this, SLOT(takeToken(uint, QString)));
    m_bus.connect(service, path, service, u"NotificationClosed"_s, this, SLOT(takeClosing(uint, uint)));
    auto *watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &DesktopNotifier::forget);
}

void DesktopNotifier::show(const Notification &notification)
{
    m_next = notification;
    if (m_isCalling)
        return;
    if (m_capabilities)
        send();
    else
        askForCapabilities();
}

void DesktopNotifier::askForCapabilities()
{
    m_isCalling = true;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(callOf(u"GetCapabilities"_s), callLimitMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        m_isCalling = false;
        const QDBusPendingReply<QStringList> reply = *call;
        if (reply.isError()) {
            m_next.reset();
            forget();
            return;
        }
        m_capabilities = reply.value();
        send();
    });
}

QDBusMessage DesktopNotifier::notifyCall(const Notification &notification) const
{
    // A name in the text could be markup, but only where the service reads any.
    const bool readsMarkup = m_capabilities->contains("body-markup"_L1);
    QStringList actions;
    if (m_capabilities->contains("actions"_L1)) {
        for (const Notification::Action &action : notification.actions)
            actions << action.id << action.label;
    }
    const QVariantMap hints { { u"desktop-entry"_s, QString(applicationId) } };
    constexpr int asLongAsUsual = -1;
    QDBusMessage call = callOf(u"Notify"_s);
    call << u"Varlo"_s << m_id << QString(applicationId) << notification.title
         << (readsMarkup ? notification.text.toHtmlEscaped() : notification.text) << actions << hints << asLongAsUsual;
    return call;
}

void DesktopNotifier::send()
{
    if (!m_next)
        return;
    m_isCalling = true;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(notifyCall(*m_next), callLimitMs), this);
    m_next.reset();
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        m_isCalling = false;
        const QDBusPendingReply<uint> reply = *call;
        if (reply.isError()) {
            m_next.reset();
            forget();
            return;
        }
        m_id = reply.value();
        whenShown();
        send();
    });
}

void DesktopNotifier::close()
{
    m_next.reset();
    if (m_id == 0)
        return;
    m_bus.asyncCall(callOf(u"CloseNotification"_s) << m_id, callLimitMs).waitForFinished(); // the program may end now
    forget();
}

/// Executes this program's own `open` subcommand, which knows where the window is.
static void startWindow(const std::vector<SuggestedFile> &files)
{
    std::vector<std::string> words { "varlo", "open", "--" };
    for (const SuggestedFile &file : files)
        words.push_back(file.path.native());
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    ::posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, arguments.data(), environ);
}

/// With the names beside the files, and `token` for the right to come to the front.
static QDBusMessage openCall(const std::vector<SuggestedFile> &files, const QString &token)
{
    QStringList uris;
    for (const SuggestedFile &file : files)
        uris.append(QString::fromLatin1(fileUri(file.path)));
    QVariantMap platformData { { suggestionsKey, suggestionsText(files) } };
    if (!token.isEmpty()) {
        platformData.insert(u"activation-token"_s, token);
        platformData.insert(u"desktop-startup-id"_s, token);
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        applicationId, u"/com/varlo/Varlo"_s, u"org.freedesktop.Application"_s, u"Open"_s);
    call << uris << platformData;
    return call;
}

void DesktopNotifier::openWindow(const std::vector<SuggestedFile> &files)
{
    // Started by the bus, the window belongs to nobody else: it does not end with a watch, and is not limited as one.
    const QDBusMessage message = openCall(files, std::exchange(m_token, {}));
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, openLimitMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, message, files] {
        call->deleteLater();
        const QDBusError::ErrorType error = call->error().type();
        // A window that is only slow to answer has the files.
        if (!call->isError() || error == QDBusError::NoReply || error == QDBusError::Timeout)
            return;
        openOnceItIsThere(message); // its arguments name the files alone
        startWindow(files);
    });
}

void DesktopNotifier::openOnceItIsThere(const QDBusMessage &call)
{
    auto *watcher = new QDBusServiceWatcher(applicationId, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this, watcher, call] {
        watcher->deleteLater();
        m_bus.asyncCall(call, openLimitMs);
    });
    QTimer::singleShot(openLimitMs, watcher, &QObject::deleteLater); // a window of later is somebody else's
}

void DesktopNotifier::takeAction(uint id, const QString &actionId)
{
    if (id == m_id && m_id != 0)
        whenChosen(actionId);
}

void DesktopNotifier::takeToken(uint id, const QString &token)
{
    if (id == m_id && m_id != 0)
        m_token = token;
}

void DesktopNotifier::takeClosing(uint id, uint)
{
    if (id == m_id && m_id != 0 && !m_isCalling) // or else the next one is on its way already
        forget();
}

void DesktopNotifier::forget()
{
    m_id = 0;
    whenGone();
}

} // namespace Varlo
