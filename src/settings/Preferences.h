// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PreferenceStore.h"
#include <QList>
#include <QString>

namespace Varlo {

/// One preference: its name, its kind and what holds while nothing is stored.
struct PreferenceKey {
    QString name;
    PreferenceType type;
    PreferenceValue defaultValue;
};

/// Every preference there is. Stored whole, one value a key.
namespace Preference {
extern const PreferenceKey uiLanguage; ///< "system", "en", "nl" or "es"
extern const PreferenceKey settingsSelectedTab; ///< "templates", "folders", "tags", "watch", "language" or "about"
extern const PreferenceKey hasCompletedOnboarding;
extern const PreferenceKey writeFinderTags; ///< ask for keyword tags, and write them when a file is renamed
extern const PreferenceKey watchFolderEnabled;
extern const PreferenceKey watchFolderPath; ///< absolute; "" for none
extern const PreferenceKey watchFolderPathBytes; ///< the same where it is not UTF-8; see watchFolderPath()
extern const PreferenceKey watchFolderIncludeExisting;
extern const PreferenceKey templates; ///< JSON array of name templates
extern const PreferenceKey renameLog; ///< JSON array of the renames made
extern const PreferenceKey folderBookmarks; ///< folder path to bookmark
extern const PreferenceKey endpoint; ///< base address of the model's interface; "" for the hosted one
extern const PreferenceKey model; ///< the model asked for; "" for the fixed one
extern const PreferenceKey windowSize; ///< "1080x720"
[[nodiscard]] const QList<const PreferenceKey *> &all();
} // namespace Preference

/// Typed access to the store: a value that is absent or of another kind reads as the key's default.
class Preferences : public QObject {
    Q_OBJECT
public:
    /// The store outlives this object.
    explicit Preferences(PreferenceStore &store, QObject *parent = nullptr);

    [[nodiscard]] bool boolean(const PreferenceKey &key) const;
    [[nodiscard]] QString string(const PreferenceKey &key) const;
    [[nodiscard]] QByteArray data(const PreferenceKey &key) const;
    [[nodiscard]] PreferenceDictionary dictionary(const PreferenceKey &key) const;

    /// Why what is stored could not be read, and the defaults stand in for it; nothing when it was read.
    [[nodiscard]] std::optional<SystemError> readError() const { return m_store.readError(); }

    [[nodiscard]] Result<void, SystemError> set(const PreferenceKey &key, const PreferenceValue &value);
    /// Changes the value as it is on disk now, with every other process kept out meanwhile. `change` sees the default
    /// where nothing is stored; giving that back stores nothing.
    [[nodiscard]] Result<void, SystemError> update(
        const PreferenceKey &key, const std::function<PreferenceValue(const PreferenceValue &current)> &change);
    /// Lets an option of this call stand over what is stored, which stays as it is.
    void setForThisProcess(const PreferenceKey &key, const PreferenceValue &value);
    /// Keeps a copy of what is stored, before a value that cannot be made sense of is replaced. See PreferenceStore.
    [[nodiscard]] Result<void, SystemError> keepCopy() { return m_store.keepCopy(); }

signals:
    /// The key's value changed here or in another process; `name` is that of a PreferenceKey.
    void changed(const QString &name);

private:
    [[nodiscard]] PreferenceValue valueOrDefault(const PreferenceKey &key) const;

    PreferenceStore &m_store;
    std::map<QString, PreferenceValue> m_forThisProcess;
};

} // namespace Varlo
