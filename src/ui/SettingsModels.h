// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FinderAccess.h"
#include "renaming/GrantedFolders.h"
#include "settings/PreferenceModel.h"
#include "suggestion/ProviderModel.h"
#include "templates/TemplateEditor.h"

namespace Varlo {

/// What the settings and the first start work with, and what is known of the program itself.
class SettingsModels final : public QObject {
    Q_OBJECT
    Q_PROPERTY(Varlo::PreferenceModel *preferences READ preferences CONSTANT)
    Q_PROPERTY(Varlo::TemplateEditor *templateEditor READ templateEditor CONSTANT)
    Q_PROPERTY(Varlo::GrantedFolders *folders READ folders CONSTANT)
    Q_PROPERTY(Varlo::FinderAccess *finder READ finder CONSTANT)
    Q_PROPERTY(Varlo::ProviderModel *provider READ provider CONSTANT)
    /// Where a chooser of folders opens.
    Q_PROPERTY(QUrl startFolder READ startFolder CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString buildNumber READ buildNumber CONSTANT)
    /// The addresses are empty where the build names none.
    Q_PROPERTY(QString website READ website CONSTANT)
    Q_PROPERTY(QString support READ support CONSTANT)
    Q_PROPERTY(QString documentation READ documentation CONSTANT)
public:
    /// All of them outlive this object; `automation` may be null.
    SettingsModels(Preferences &preferences, TemplateStore &templates, FolderAccess &folderAccess,
        AutomationHost *automation, ConfiguredNameSuggester &suggester, const SystemLocale &locale,
        QObject *parent = nullptr);

    [[nodiscard]] PreferenceModel *preferences() { return &m_preferences; }
    [[nodiscard]] TemplateEditor *templateEditor() { return &m_templateEditor; }
    [[nodiscard]] GrantedFolders *folders() { return &m_folders; }
    [[nodiscard]] FinderAccess *finder() { return &m_finder; }
    [[nodiscard]] ProviderModel *provider() { return &m_provider; }
    /// The texts are asked for again, in another language.
    void retranslate();
    [[nodiscard]] QUrl startFolder() const;
    [[nodiscard]] QString version() const;
    [[nodiscard]] QString buildNumber() const;
    [[nodiscard]] QString website() const;
    [[nodiscard]] QString support() const;
    [[nodiscard]] QString documentation() const;

private:
    PreferenceModel m_preferences;
    TemplateEditor m_templateEditor;
    GrantedFolders m_folders;
    FinderAccess m_finder;
    ProviderModel m_provider;
};

} // namespace Varlo
