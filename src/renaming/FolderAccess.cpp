// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FolderAccess.h"

#include "platform/shownPath.h"
#include "renaming/FolderBookmark.h"
#include <algorithm>
#include <QCoreApplication>
#include <QPointer>

namespace Varlo {

using namespace Qt::StringLiterals;
using std::filesystem::path;

FolderAccess::FolderAccess(Preferences &preferences, FolderAccessPanel &panel, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_panel(panel)
{
}

QString FolderAccess::panelMessage()
{
    //: Open-panel message asking for folder access before renaming
    return QCoreApplication::translate("FolderAccess", "To rename files here, allow access to this folder.");
}

QString FolderAccess::panelConfirmation()
{
    //: Open-panel confirm button granting folder access
    return QCoreApplication::translate("FolderAccess", "Allow");
}

/// In bytes: on Linux two spellings of one accent are two folders, and access to one says nothing of the other.
static bool covers(const path &folder, const path &covered)
{
    const std::string &outer = folder.native();
    const std::string &inner = covered.native();
    return inner == outer || inner.starts_with(outer.ends_with('/') ? outer : outer + '/');
}

/// The path for showing, with its bytes behind it where two such paths could look the same.
static QString keyFor(const path &folder)
{
    const QString shown = shownPath(folder);
    const QByteArray bytes = QByteArray::fromStdString(folder.native());
    if (shown.toUtf8() == bytes)
        return shown;
    return u"%1 (%2)"_s.arg(shown, QString::fromLatin1(bytes.toPercentEncoding("/")));
}

PreferenceDictionary FolderAccess::grantedFolders() const
{
    return m_preferences.dictionary(Preference::folderBookmarks);
}

bool FolderAccess::isActive(const path &covered) const
{
    return std::any_of(m_activeFolders.begin(), m_activeFolders.end(),
        [&](const auto &active) { return covers(active.second, covered); });
}

void FolderAccess::store(const QString &key, const QByteArray &bookmark)
{
    // Only this entry: another Varlo may have stored others since. A grant that cannot be stored holds until the end of
    // the process.
    static_cast<void>(m_preferences.update(Preference::folderBookmarks, [&](const PreferenceValue &current) {
        auto folders = std::get<PreferenceDictionary>(current);
        folders.insert_or_assign(key, bookmark);
        return PreferenceValue(folders);
    }));
}

bool FolderAccess::beginAccess(const path &covered)
{
    const path standardized = standardizedPath(covered);
    if (isActive(standardized))
        return true;
    for (const auto &[key, data] : grantedFolders()) {
        auto bookmark = FolderBookmark::decode(data, key.toStdString());
        if (!bookmark || !covers(bookmark->granted, standardized))
            continue;
        const auto resolved = bookmark->resolve();
        if (!resolved || !canRenameIn(resolved->path))
            continue;
        if (resolved->isStale) {
            if (auto fresh = FolderBookmark::of(resolved->path)) {
                fresh->granted = bookmark->granted;
                store(key, fresh->encoded());
            }
        }
        m_activeFolders.insert_or_assign(key, bookmark->granted);
        return true;
    }
    return false;
}

void FolderAccess::addGrant(const path &folder)
{
    const path standardized = standardizedPath(folder);
    const QString key = keyFor(standardized);
    m_activeFolders.insert_or_assign(key, standardized);
    if (const auto bookmark = FolderBookmark::of(standardized))
        store(key, bookmark->encoded());
}

void FolderAccess::removeGrant(const QString &key)
{
    m_activeFolders.erase(key);
    static_cast<void>(m_preferences.update(Preference::folderBookmarks, [&](const PreferenceValue &current) {
        auto folders = std::get<PreferenceDictionary>(current);
        folders.erase(key);
        return PreferenceValue(folders);
    }));
}

QCoro::Task<bool> FolderAccess::requestAccess(path folder)
{
    if (beginAccess(folder))
        co_return true;
    const path standardized = standardizedPath(folder);
    if (m_declinedFolders.contains(standardized))
        co_return false;
    const QPointer<FolderAccess> self = this;
    const std::optional<path> chosen = co_await m_panel.ask(standardized);
    if (!self)
        co_return false;
    if (!chosen || !canRenameIn(*chosen)) {
        m_declinedFolders.insert(standardized);
        co_return false;
    }
    addGrant(*chosen);
    co_return covers(standardizedPath(*chosen), standardized);
}

} // namespace Varlo
