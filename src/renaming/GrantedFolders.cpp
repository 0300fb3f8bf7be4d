// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/GrantedFolders.h"

#include "platform/localPath.h"
#include "platform/pathFromHome.h"
#include "platform/visibleText.h"

namespace Varlo {

GrantedFolders::GrantedFolders(FolderAccess &access, Preferences &preferences, QObject *parent)
    : QAbstractListModel(parent)
    , m_access(access)
{
    reload();
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (name == Preference::folderBookmarks.name)
            reload();
    });
}

int GrantedFolders::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_keys.size());
}

QVariant GrantedFolders::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != FolderRole)
        return {};
    return visibleText(pathFromHome(m_keys.at(index.row())));
}

QHash<int, QByteArray> GrantedFolders::roleNames() const { return { { FolderRole, "folder" } }; }

void GrantedFolders::add(const QUrl &folder)
{
    if (const auto path = localPath(folder))
        m_access.addGrant(*path);
}

void GrantedFolders::remove(int row)
{
    if (row >= 0 && row < rowCount())
        m_access.removeGrant(QString(m_keys.at(row)));
}

/// Row by row, so that what stays keeps its place and the keyboard.
void GrantedFolders::reload()
{
    QStringList wanted;
    for (const auto &[key, bookmark] : m_access.grantedFolders())
        wanted.append(key);
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (wanted.contains(m_keys.at(row)))
            continue;
        beginRemoveRows({}, row, row);
        m_keys.removeAt(row);
        endRemoveRows();
    }
    for (int row = 0; row < wanted.size(); ++row) {
        if (row < m_keys.size() && m_keys.at(row) == wanted.at(row))
            continue;
        beginInsertRows({}, row, row);
        m_keys.insert(row, wanted.at(row));
        endInsertRows();
    }
    emit countChanged();
}

} // namespace Varlo
