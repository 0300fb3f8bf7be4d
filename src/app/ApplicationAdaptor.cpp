// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ApplicationAdaptor.h"

#include "notify/suggestionsText.h"
#include "platform/fileUri.h"
#include "platform/shownPath.h"

namespace Varlo {

using namespace Qt::StringLiterals;

ApplicationAdaptor::ApplicationAdaptor(SingleInstance &instance)
    : QDBusAbstractAdaptor(&instance)
    , m_instance(instance)
{
}

void ApplicationAdaptor::Activate(const QVariantMap &platform_data)
{
    emit m_instance.requested({ {}, {}, platform_data });
}

void ApplicationAdaptor::Open(const QStringList &uris, const QVariantMap &platform_data)
{
    SingleInstance::Request request { {}, {}, platform_data };
    for (const QString &uri : uris) {
        if (const auto path = pathOfFileUri(uri.toUtf8()))
            request.files.push_back(standardizedPath(*path));
    }
    request.suggestions = suggestedFiles(request.files, platform_data.value(suggestionsKey).toString());
    emit m_instance.requested(request);
}

void ApplicationAdaptor::ActivateAction(const QString &action_name, const QVariantList &parameter,
    const QVariantMap &platform_data, const QDBusMessage &message)
{
    const bool isKnown = QStringList { u"settings"_s, u"history"_s, u"check-for-updates"_s }.contains(action_name);
    if (!isKnown || !parameter.isEmpty()) {
        message.setDelayedReply(true); // else an empty answer would follow the error
        m_instance.bus().send(message.createErrorReply(QDBusError::InvalidArgs, u"There is no such action."_s));
        return;
    }
    emit m_instance.actionRequested(action_name, platform_data);
}

} // namespace Varlo
