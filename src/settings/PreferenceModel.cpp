// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/PreferenceModel.h"

#include "platform/localPath.h"
#include "platform/pathFromHome.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include "settings/watchFolderPath.h"

namespace Varlo {

PreferenceModel::PreferenceModel(Preferences &preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    connect(&preferences, &Preferences::changed, this, &PreferenceModel::changed);
}

void PreferenceModel::setHasCompletedOnboarding(bool isCompleted)
{
    m_hasCompletedOnboarding = isCompleted;
    set(Preference::hasCompletedOnboarding, isCompleted);
}

QString PreferenceModel::watchFolderPath() const
{
    return visibleText(pathFromHome(m_preferences.string(Preference::watchFolderPath)));
}

void PreferenceModel::chooseWatchFolder(const QUrl &folder)
{
    if (const auto path = localPath(folder))
        tell(setWatchFolderPath(m_preferences, standardizedPath(*path)));
}

void PreferenceModel::set(const PreferenceKey &key, const PreferenceValue &value)
{
    tell(m_preferences.set(key, value));
}

void PreferenceModel::tell(const Result<void, SystemError> &stored)
{
    m_storeError = stored ? QString() : stored.error().description();
    emit changed(); // also after a failure, so that a switch goes back to what holds
}

} // namespace Varlo
