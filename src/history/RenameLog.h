// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/RenameLogEntry.h"
#include "platform/Clock.h"
#include "settings/Preferences.h"
#include <filesystem>
#include <QAbstractListModel>
#include <string>
#include <unordered_map>
#include <vector>

namespace Varlo {

/// The renames made, oldest first, the newest 1000 of them. Lives on the main thread; each change is stored before its
/// call returns.
class RenameLog final : public QAbstractListModel {
    Q_OBJECT
public:
    using Entry = RenameLogEntry;
    enum Role { IdRole = Qt::UserRole + 1, FromNameRole, ToNameRole, DateRole, UndoneRole };
    Q_ENUM(Role)
    static constexpr std::size_t maximumEntries = 1000;

    /// Both outlive the log.
    RenameLog(Preferences &preferences, const Clock &clock, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const std::vector<Entry> &entries() const { return m_entries; }

    /// True when a standing rename led to this path, or to a file of the same name in another folder. In constant time.
    [[nodiscard]] bool hasStandingRename(const std::filesystem::path &path) const;

    /// Logs that the file at `from` now is at `to`.
    void record(const std::filesystem::path &from, const std::filesystem::path &to);
    /// Forgets every entry; no file is touched.
    void clear();

signals:
    /// A rename was taken back: the file that was at `renamedPath` is at `restoredPath` again.
    void reverted(const std::filesystem::path &renamedPath, const std::filesystem::path &restoredPath);

private:
    void load();
    void save();
    void countStanding(const Entry &entry, int change);
    void removeOldest(std::size_t count);

    Preferences &m_preferences;
    const Clock &m_clock;
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, int> m_standingNames; // how many standing renames led to a name
};

} // namespace Varlo
