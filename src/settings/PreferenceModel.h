// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/Preferences.h"
#include <QUrl>

namespace Varlo {

/// The preferences that views are bound to, each under its own name. A change shows at once, whoever makes it; one that
/// cannot be stored does not take place, and `storeError` says why. Lives on the main thread.
class PreferenceModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString uiLanguage READ uiLanguage WRITE setUiLanguage NOTIFY changed)
    Q_PROPERTY(QString settingsSelectedTab READ settingsSelectedTab WRITE setSettingsSelectedTab NOTIFY changed)
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE setHasCompletedOnboarding NOTIFY changed)
    Q_PROPERTY(bool writeFinderTags READ writeFinderTags WRITE setWriteFinderTags NOTIFY changed)
    Q_PROPERTY(bool watchFolderEnabled READ watchFolderEnabled WRITE setWatchFolderEnabled NOTIFY changed)
    Q_PROPERTY(bool watchFolderIncludeExisting READ watchFolderIncludeExisting WRITE setWatchFolderIncludeExisting
            NOTIFY changed)
    /// For showing; "" for none.
    Q_PROPERTY(QString watchFolderPath READ watchFolderPath NOTIFY changed)
    Q_PROPERTY(QString storeError READ storeError NOTIFY changed)
public:
    /// The preferences outlive this object.
    explicit PreferenceModel(Preferences &preferences, QObject *parent = nullptr);

    [[nodiscard]] QString uiLanguage() const { return m_preferences.string(Preference::uiLanguage); }
    void setUiLanguage(const QString &language) { set(Preference::uiLanguage, language); }
    [[nodiscard]] QString settingsSelectedTab() const { return m_preferences.string(Preference::settingsSelectedTab); }
    void setSettingsSelectedTab(const QString &tab) { set(Preference::settingsSelectedTab, tab); }
    [[nodiscard]] bool hasCompletedOnboarding() const
    {
        return m_hasCompletedOnboarding || m_preferences.boolean(Preference::hasCompletedOnboarding);
    }
    /// Holds for this run even where it cannot be stored: nobody is kept out of the window.
    void setHasCompletedOnboarding(bool isCompleted);
    [[nodiscard]] bool writeFinderTags() const { return m_preferences.boolean(Preference::writeFinderTags); }
    void setWriteFinderTags(bool isOn) { set(Preference::writeFinderTags, isOn); }
    [[nodiscard]] bool watchFolderEnabled() const { return m_preferences.boolean(Preference::watchFolderEnabled); }
    void setWatchFolderEnabled(bool isOn) { set(Preference::watchFolderEnabled, isOn); }
    [[nodiscard]] bool watchFolderIncludeExisting() const
    {
        return m_preferences.boolean(Preference::watchFolderIncludeExisting);
    }
    void setWatchFolderIncludeExisting(bool isOn) { set(Preference::watchFolderIncludeExisting, isOn); }
    [[nodiscard]] QString watchFolderPath() const;
    /// The address of a folder that the user has just chosen.
    Q_INVOKABLE void chooseWatchFolder(const QUrl &folder);
    /// Why the latest change could not be stored; "" where it was.
    [[nodiscard]] QString storeError() const { return m_storeError; }

signals:
    void changed();

private:
    void set(const PreferenceKey &key, const PreferenceValue &value);
    void tell(const Result<void, SystemError> &stored);

    Preferences &m_preferences;
    bool m_hasCompletedOnboarding = false;
    QString m_storeError;
};

} // namespace Varlo
