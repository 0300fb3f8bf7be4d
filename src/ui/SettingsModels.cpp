// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SettingsModels.h"

#include <QDir>
#include <QStandardPaths>

namespace Varlo {

SettingsModels::SettingsModels(Preferences &preferences, TemplateStore &templates, FolderAccess &folderAccess,
    AutomationHost *automation, ConfiguredNameSuggester &suggester, const SystemLocale &locale, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_templateEditor(templates, locale)
    , m_folders(folderAccess, preferences)
    , m_finder(automation)
    , m_provider(preferences, suggester)
{
}

void SettingsModels::retranslate()
{
    m_templateEditor.retranslate();
    m_provider.retranslate();
}

QUrl SettingsModels::startFolder() const
{
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return QUrl::fromLocalFile(QDir(downloads).exists() ? downloads : QDir::homePath());
}

QString SettingsModels::version() const { return QStringLiteral(VARLO_VERSION); }

QString SettingsModels::buildNumber() const { return QStringLiteral(VARLO_BUILD_NUMBER); }

QString SettingsModels::website() const { return QStringLiteral(VARLO_WEBSITE); }

QString SettingsModels::support() const
{
    const QString address = QStringLiteral(VARLO_SUPPORT_ADDRESS);
    return address.isEmpty() ? address : QStringLiteral("mailto:") + address;
}

QString SettingsModels::documentation() const { return QStringLiteral(VARLO_DOCUMENTATION); }

} // namespace Varlo
