// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/RenameLog.h"

#include "platform/shownPath.h"
#include <algorithm>

namespace Varlo {

RenameLog::RenameLog(Preferences &preferences, const Clock &clock, QObject *parent)
    : QAbstractListModel(parent)
    , m_preferences(preferences)
    , m_clock(clock)
{
    load();
}

int RenameLog::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant RenameLog::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Entry &entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return entry.id();
    case FromNameRole:
        return shownPath(entry.fromPath.filename());
    case Qt::DisplayRole:
    case ToNameRole:
        return shownPath(entry.toPath.filename());
    case DateRole:
        return timeFromSecondsSince2001(entry.date);
    case UndoneRole:
        return !entry.isStanding();
    default:
        return {};
    }
}

QHash<int, QByteArray> RenameLog::roleNames() const
{
    return {
        { IdRole, "entryId" },
        { FromNameRole, "fromName" },
        { ToNameRole, "toName" },
        { DateRole, "date" },
        { UndoneRole, "undone" },
    };
}

/// A name in the form in which two spellings of the same characters ("é" composed or not) are one.
static std::string comparableName(const std::filesystem::path &path)
{
    const std::string bytes = path.filename().native();
    const bool isAscii = std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
    if (isAscii)
        return bytes;
    const QString text = QString::fromStdString(bytes);
    return text.toStdString() == bytes ? text.normalized(QString::NormalizationForm_C).toStdString() : bytes;
}

bool RenameLog::hasStandingRename(const std::filesystem::path &path) const
{
    // Equal paths end in equal names, so the names decide alone.
    return m_standingNames.contains(comparableName(path));
}

void RenameLog::countStanding(const Entry &entry, int change)
{
    if (!entry.isStanding())
        return;
    const auto counted = m_standingNames.try_emplace(comparableName(entry.toPath), 0).first;
    counted->second += change;
    if (counted->second == 0)
        m_standingNames.erase(counted);
}

void RenameLog::removeOldest(std::size_t count)
{
    if (count == 0)
        return;
    beginRemoveRows({}, 0, static_cast<int>(count) - 1);
    const auto end = m_entries.begin() + static_cast<std::ptrdiff_t>(count);
    std::for_each(m_entries.begin(), end, [this](const Entry &entry) { countStanding(entry, -1); });
    m_entries.erase(m_entries.begin(), end);
    endRemoveRows();
}

void RenameLog::record(const std::filesystem::path &from, const std::filesystem::path &to)
{
    const Entry entry { standardizedPath(from), standardizedPath(to), secondsSince2001(m_clock.now()), std::nullopt };
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_entries.push_back(entry);
    countStanding(entry, 1);
    endInsertRows();
    if (m_entries.size() > maximumEntries)
        removeOldest(m_entries.size() - maximumEntries);
    save();
}

void RenameLog::clear()
{
    removeOldest(m_entries.size());
    save();
}

void RenameLog::load()
{
    beginResetModel();
    m_entries = decodeRenameLog(m_preferences.data(Preference::renameLog)).value_or(std::vector<Entry> {});
    m_standingNames.clear();
    for (const Entry &entry : m_entries)
        countStanding(entry, 1);
    endResetModel();
}

void RenameLog::save()
{
    // Nothing can be done here about a disk that refuses: the log goes on in memory, and the next save tries again.
    static_cast<void>(m_preferences.set(Preference::renameLog, encodeRenameLog(m_entries)));
}

} // namespace Varlo
