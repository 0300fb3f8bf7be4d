// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Preferences.h"

namespace Varlo {

using namespace Qt::StringLiterals;

namespace Preference {

const PreferenceKey uiLanguage { u"uiLanguage"_s, PreferenceType::String, u"system"_s };
const PreferenceKey settingsSelectedTab { u"settingsSelectedTab"_s, PreferenceType::String, u"language"_s };
const PreferenceKey hasCompletedOnboarding { u"hasCompletedOnboarding"_s, PreferenceType::Bool, false };
const PreferenceKey writeFinderTags { u"writeFinderTags"_s, PreferenceType::Bool, false };
const PreferenceKey watchFolderEnabled { u"watchFolderEnabled"_s, PreferenceType::Bool, false };
const PreferenceKey watchFolderPath { u"watchFolderPath"_s, PreferenceType::String, QString() };
const PreferenceKey watchFolderPathBytes { u"watchFolderPathBytes"_s, PreferenceType::Data, QByteArray() };
const PreferenceKey watchFolderIncludeExisting { u"watchFolderIncludeExisting"_s, PreferenceType::Bool, false };
const PreferenceKey templates { u"templates"_s, PreferenceType::Data, QByteArray() };
const PreferenceKey renameLog { u"renameLog"_s, PreferenceType::Data, QByteArray() };
const PreferenceKey folderBookmarks { u"folderBookmarks"_s, PreferenceType::Dictionary, PreferenceDictionary() };
const PreferenceKey endpoint { u"endpoint"_s, PreferenceType::String, QString() };
const PreferenceKey model { u"model"_s, PreferenceType::String, QString() };
const PreferenceKey windowSize { u"windowSize"_s, PreferenceType::String, u"1080x720"_s };

const QList<const PreferenceKey *> &all()
{
    static const QList<const PreferenceKey *> keys { &uiLanguage, &settingsSelectedTab, &hasCompletedOnboarding,
        &writeFinderTags, &watchFolderEnabled, &watchFolderPath, &watchFolderPathBytes, &watchFolderIncludeExisting,
        &templates, &renameLog, &folderBookmarks, &endpoint, &model, &windowSize };
    return keys;
}

} // namespace Preference

static bool isPreference(const QString &name)
{
    const auto &keys = Preference::all();
    return std::any_of(keys.begin(), keys.end(), [&](const PreferenceKey *key) { return key->name == name; });
}

Preferences::Preferences(PreferenceStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{
    connect(&store, &PreferenceStore::changed, this, [this](const QString &name) {
        if (isPreference(name))
            emit changed(name);
    });
}

bool Preferences::boolean(const PreferenceKey &key) const { return std::get<bool>(valueOrDefault(key)); }

QString Preferences::string(const PreferenceKey &key) const { return std::get<QString>(valueOrDefault(key)); }

QByteArray Preferences::data(const PreferenceKey &key) const { return std::get<QByteArray>(valueOrDefault(key)); }

PreferenceDictionary Preferences::dictionary(const PreferenceKey &key) const
{
    return std::get<PreferenceDictionary>(valueOrDefault(key));
}

Result<void, SystemError> Preferences::set(const PreferenceKey &key, const PreferenceValue &value)
{
    return update(key, [&value](const PreferenceValue &) { return value; });
}

Result<void, SystemError> Preferences::update(
    const PreferenceKey &key, const std::function<PreferenceValue(const PreferenceValue &)> &change)
{
    Q_ASSERT(key.defaultValue.index() == static_cast<size_t>(key.type));
    return m_store.update(
        key.name, key.type, [&](const std::optional<PreferenceValue> &current) -> std::optional<PreferenceValue> {
            PreferenceValue replacement = change(current.value_or(key.defaultValue));
            if (!current && replacement == key.defaultValue)
                return {};
            return replacement;
        });
}

void Preferences::setForThisProcess(const PreferenceKey &key, const PreferenceValue &value)
{
    m_forThisProcess.insert_or_assign(key.name, value);
    emit changed(key.name);
}

PreferenceValue Preferences::valueOrDefault(const PreferenceKey &key) const
{
    const auto override = m_forThisProcess.find(key.name);
    if (override != m_forThisProcess.end())
        return override->second;
    return m_store.value(key.name, key.type).value_or(key.defaultValue);
}

} // namespace Varlo
