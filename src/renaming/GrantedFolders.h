// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FolderAccess.h"
#include <QAbstractListModel>
#include <QUrl>

namespace Varlo {

/// The folders in which the user allowed renaming, in the order of their names. Follows what is stored. Lives on the
/// main thread.
class GrantedFolders final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role { FolderRole = Qt::UserRole + 1 }; ///< its path for showing

    /// Both outlive this object.
    GrantedFolders(FolderAccess &access, Preferences &preferences, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// A folder that the user has just chosen. One that cannot be found again later is not listed.
    Q_INVOKABLE void add(const QUrl &folder);
    Q_INVOKABLE void remove(int row);

signals:
    void countChanged();

private:
    void reload();

    FolderAccess &m_access;
    QStringList m_keys;
};

} // namespace Varlo
