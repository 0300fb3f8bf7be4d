// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include "app/ApplicationAdaptor.h"
#include "platform/fileUri.h"
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <sys/stat.h>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr auto busName = "com.varlo.Varlo"_L1;
static constexpr auto objectPath = "/com/varlo/Varlo"_L1;
static constexpr auto interfaceName = "org.freedesktop.Application"_L1;

/// Only where there is one already: asking for a bus that nobody announced may start one that nobody else uses.
static QDBusConnection sessionBus()
{
    const QByteArray socket = qgetenv("XDG_RUNTIME_DIR") + "/bus";
    struct stat status { };
    const bool isAnnounced = !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") && ::stat(socket.constData(), &status) == 0);
    return isAnnounced ? QDBusConnection::sessionBus() : QDBusConnection(u"none"_s);
}

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
    , m_bus(sessionBus())
{
    new ApplicationAdaptor(*this);
}

SingleInstance::~SingleInstance() { end(); }

SingleInstance::Role SingleInstance::begin(const Request &request)
{
    // The object comes before the name, so that whoever sees the name finds the object.
    if (!m_bus.isConnected() || !m_bus.registerObject(objectPath, this))
        return Role::First;
    constexpr int mostAttempts = 5; // the first one may go just when it is to be told
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const auto answer = m_bus.interface()->registerService(busName);
        if (!answer.isValid() || answer == QDBusConnectionInterface::ServiceRegistered)
            return Role::First; // a bus that refuses names to us is as good as none
        switch (handOver(request)) {
        case HandedOver::Yes:
            return Role::Second;
        case HandedOver::NoAnswer:
            return Role::Unanswered;
        case HandedOver::NobodyThere:
            break;
        }
    }
    return Role::Unanswered;
}

SingleInstance::HandedOver SingleInstance::handOver(const Request &request)
{
    QStringList uris;
    for (const std::filesystem::path &file : request.files)
        uris.append(QString::fromLatin1(fileUri(file)));
    QDBusMessage call = QDBusMessage::createMethodCall(
        busName, objectPath, interfaceName, uris.isEmpty() ? u"Activate"_s : u"Open"_s);
    call.setAutoStartService(false);
    if (!uris.isEmpty())
        call << uris;
    call << request.platformData;
    const QDBusMessage answer = m_bus.call(call);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return HandedOver::Yes;
    const QDBusError::ErrorType error = QDBusError(answer).type();
    return error == QDBusError::NoReply || error == QDBusError::Timeout || error == QDBusError::TimedOut
        ? HandedOver::NoAnswer
        : HandedOver::NobodyThere;
}

void SingleInstance::end()
{
    if (!m_bus.isConnected())
        return;
    m_bus.unregisterObject(objectPath);
    m_bus.unregisterService(busName);
}

} // namespace Varlo
