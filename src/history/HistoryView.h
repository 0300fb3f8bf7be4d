// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/RenameLog.h"
#include "platform/Clock.h"
#include "platform/visibleText.h"
#include <QSet>
#include <QSortFilterProxyModel>

namespace Varlo {

/// The rename log as it is looked through: newest first, by day, with a search and a selection of renames to take back.
/// Lives on the main thread.
class HistoryView final : public QSortFilterProxyModel {
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(int savedCount READ savedCount NOTIFY savedCountChanged)
public:
    enum Role { DayRole = RenameLog::UndoneRole + 1, TimeRole, SelectedRole };

    /// Both outlive the view.
    HistoryView(RenameLog &log, const Clock &clock, QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Announces every text of Varlo's own again, in the interface's new language.
    void retranslate();

    [[nodiscard]] QString searchText() const { return m_searchText; }
    /// Looks in the names before and after a rename, not in folders or dates, in any case. Spaces around it do not
    /// count.
    void setSearchText(const QString &text);
    /// Why the latest taking back failed; "" where it did not.
    [[nodiscard]] QString lastError() const { return visibleMessage(m_lastError); }
    [[nodiscard]] int selectedCount() const { return static_cast<int>(m_selectedIDs.size()); }
    [[nodiscard]] int savedCount() const { return m_log.rowCount(); }

    /// Does nothing for a rename that was taken back.
    Q_INVOKABLE void toggle(int row);
    /// Selects what is listed and stands.
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void deselectAll();
    using QSortFilterProxyModel::revert;
    Q_INVOKABLE void revert(int row);
    Q_INVOKABLE void revertSelected();
    /// Takes back the newest rename that stands, listed or not.
    Q_INVOKABLE void revertLatest();
    /// Forgets every rename; the files stay as they are.
    Q_INVOKABLE void clear();
    /// No search, no selection and no error, as for a view that is opened again.
    Q_INVOKABLE void reset();

signals:
    void searchTextChanged();
    void lastErrorChanged();
    void selectionChanged();
    void savedCountChanged();

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    [[nodiscard]] QString dayTitle(const QDate &day) const;
    QCoro::Task<void> revertAll(QStringList ids);
    void setSelected(const QSet<QString> &ids);
    void setLastError(const Message &message);

    RenameLog &m_log;
    const Clock &m_clock;
    QString m_searchText;
    QString m_needle; ///< what is looked for: trimmed and in lower case
    Message m_lastError;
    QSet<QString> m_selectedIDs;
};

} // namespace Varlo
