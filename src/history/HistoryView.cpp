// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryView.h"

#include <QLocale>
#include <QPointer>

namespace Varlo {

using namespace Qt::StringLiterals;

HistoryView::HistoryView(RenameLog &log, const Clock &clock, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_log(log)
    , m_clock(clock)
{
    setSourceModel(&log);
    sort(0, Qt::DescendingOrder);
    for (auto change : { &QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved })
        connect(&log, change, this, &HistoryView::savedCountChanged);
    connect(&log, &QAbstractItemModel::modelReset, this, &HistoryView::savedCountChanged);
}

bool HistoryView::lessThan(const QModelIndex &left, const QModelIndex &right) const { return left.row() < right.row(); }

bool HistoryView::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    const QModelIndex entry = m_log.index(sourceRow);
    return m_needle.isEmpty() || entry.data(RenameLog::ToNameRole).toString().toLower().contains(m_needle)
        || entry.data(RenameLog::FromNameRole).toString().toLower().contains(m_needle);
}

QString HistoryView::dayTitle(const QDate &day) const
{
    const QDate today = m_clock.now().toLocalTime().date();
    if (day == today)
        return tr("Today");
    if (day == today.addDays(-1))
        return tr("Yesterday");
    const QLocale locale;
    return locale.toString(day, locale.language() == QLocale::English ? u"MMM d, yyyy"_s : u"d MMM yyyy"_s);
}

QVariant HistoryView::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto date
        = [&] { return QSortFilterProxyModel::data(index, RenameLog::DateRole).toDateTime().toLocalTime(); };
    const auto entry = [&]() -> const RenameLogEntry & {
        return m_log.entries()[static_cast<std::size_t>(mapToSource(index).row())];
    };
    switch (role) {
    case RenameLog::ToNameRole:
        return visibleText(entry().toPath.filename());
    case RenameLog::FromNameRole:
        return visibleText(entry().fromPath.filename());
    case DayRole:
        return dayTitle(date().date());
    case TimeRole:
        return QLocale().toString(date().time(), QLocale::ShortFormat);
    case SelectedRole:
        return m_selectedIDs.contains(QSortFilterProxyModel::data(index, RenameLog::IdRole).toString());
    default:
        return QSortFilterProxyModel::data(index, role);
    }
}

QHash<int, QByteArray> HistoryView::roleNames() const
{
    return { { RenameLog::ToNameRole, "toName" }, { RenameLog::FromNameRole, "fromName" },
        { RenameLog::UndoneRole, "isReverted" }, { DayRole, "day" }, { TimeRole, "time" },
        { SelectedRole, "isSelected" } };
}

void HistoryView::retranslate()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), { DayRole, TimeRole });
    emit lastErrorChanged();
}

void HistoryView::setSearchText(const QString &text)
{
    if (m_searchText == text)
        return;
    m_searchText = text;
    m_needle = text.trimmed().toLower();
    invalidateFilter();
    emit searchTextChanged();
}

void HistoryView::toggle(int row)
{
    const QModelIndex entry = index(row, 0);
    if (!entry.isValid() || entry.data(RenameLog::UndoneRole).toBool())
        return;
    QSet<QString> ids = m_selectedIDs;
    const QString id = entry.data(RenameLog::IdRole).toString();
    if (!ids.remove(id))
        ids.insert(id);
    setSelected(ids);
}

void HistoryView::selectAll()
{
    QSet<QString> ids = m_selectedIDs;
    for (int row = 0; row < rowCount(); ++row) {
        if (!index(row, 0).data(RenameLog::UndoneRole).toBool())
            ids.insert(index(row, 0).data(RenameLog::IdRole).toString());
    }
    setSelected(ids);
}

void HistoryView::deselectAll() { setSelected({}); }

void HistoryView::setSelected(const QSet<QString> &ids)
{
    if (m_selectedIDs == ids)
        return;
    m_selectedIDs = ids;
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), { SelectedRole });
    emit selectionChanged();
}

void HistoryView::revert(int row)
{
    const QString id = index(row, 0).data(RenameLog::IdRole).toString();
    QSet<QString> rest = m_selectedIDs;
    rest.remove(id);
    setSelected(rest);
    revertAll({ id });
}

void HistoryView::revertSelected()
{
    const QStringList ids = m_selectedIDs.values();
    setSelected({});
    revertAll(ids);
}

QCoro::Task<void> HistoryView::revertAll(QStringList ids)
{
    const QPointer<HistoryView> self = this;
    Message message;
    const RenameLog::Action action = m_log.beginAction();
    for (const QString &id : std::as_const(ids)) {
        const RenameLog::RevertOutcome outcome = co_await m_log.revert(id);
        if (!self)
            co_return;
        if (!outcome)
            message = outcome.error();
    }
    setLastError(message);
}

void HistoryView::revertLatest()
{
    [](QPointer<HistoryView> self) -> QCoro::Task<void> {
        const RenameLog::RevertOutcome outcome = co_await self->m_log.revertLatest();
        if (self)
            self->setLastError(outcome ? Message() : outcome.error());
    }(this);
}

void HistoryView::clear()
{
    const Result<void, SystemError> cleared = m_log.clear();
    setSelected({});
    setLastError(cleared ? Message() : description(cleared.error()));
}

void HistoryView::reset()
{
    setSearchText({});
    setSelected({});
    setLastError({});
}

void HistoryView::setLastError(const Message &message)
{
    if (m_lastError == message)
        return;
    m_lastError = message;
    emit lastErrorChanged();
}

} // namespace Varlo
