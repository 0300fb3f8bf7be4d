// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/RenameLogEntry.h"
#include "renaming/FileRenamer.h"
#include "renaming/FolderAccess.h"
#include "settings/Preferences.h"
#include <filesystem>
#include <QAbstractListModel>
#include <QCoroTask>
#include <QPointer>
#include <string>
#include <unordered_map>

namespace Varlo {

/// The renames made, oldest first, the newest 1000 of them. Lives on the main thread. Each change is safe on disk
/// before its call returns: in the journal at once, and in the preferences then or when the action that it belongs to
/// ends.
class RenameLog final : public QAbstractListModel {
    Q_OBJECT
public:
    using Entry = RenameLogEntry;
    enum Role { IdRole = Qt::UserRole + 1, FromNameRole, ToNameRole, DateRole, UndoneRole };
    Q_ENUM(Role)

    /// While one lives, the log is not stored in the preferences with every rename but once, at its end.
    class Action {
    public:
        Action(Action &&other) noexcept
            : m_log(std::exchange(other.m_log, nullptr))
        {
        }
        ~Action()
        {
            if (m_log)
                m_log->endAction();
        }

    private:
        friend class RenameLog;
        explicit Action(RenameLog *log)
            : m_log(log)
        {
        }
        QPointer<RenameLog> m_log;
    };

    /// All three outlive the log. Renames that another process did not live to log are logged now.
    RenameLog(Preferences &preferences, FileRenamer &renamer, FolderAccess &access, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const RenameLogEntries &entries() const { return m_entries; }
    /// Why what was logged before could not be read, so that entries may be missing here; nothing when it was.
    [[nodiscard]] std::optional<SystemError> readError() const;

    /// True when a standing rename led to this path, or to a file of the same name in another folder. In constant time.
    [[nodiscard]] bool hasStandingRename(const std::filesystem::path &path) const;

    /// To be held during anything that renames more than one file.
    [[nodiscard]] Action beginAction();
    /// Logs that the file at `from` now is at `to`.
    void record(const std::filesystem::path &from, const std::filesystem::path &to);

    /// The path that the file has again, in the folder where it is now; nothing when there was nothing to take back.
    /// Where there is an error, the entry still stands and nothing has moved.
    using RevertOutcome = Result<std::optional<std::filesystem::path>, Message>;
    using QAbstractListModel::revert;
    [[nodiscard]] QCoro::Task<RevertOutcome> revert(QString id);
    /// Reverts the newest rename that stands.
    [[nodiscard]] QCoro::Task<RevertOutcome> revertLatest();
    /// Forgets every entry; no file is touched. On an error nothing is forgotten.
    Result<void, SystemError> clear();

    /// Messages about damaged state and about files that were lost sight of, each given out once.
    [[nodiscard]] QStringList takeNotices();

signals:
    /// A rename was taken back: the file that was at `renamedPath` is at `restoredPath` again.
    void reverted(const std::filesystem::path &renamedPath, const std::filesystem::path &restoredPath);

private:
    struct FileMissing { };
    struct HistoryUnreadable {
        SystemError cause;
    };
    using RevertFailure = std::variant<FileMissing, HistoryUnreadable, RenameFailure>;
    struct Reverted {
        std::filesystem::path renamedPath;
        std::filesystem::path restoredPath;
    };
    using RevertAttempt = Result<std::optional<Reverted>, RevertFailure>;

    [[nodiscard]] static Message description(const RevertFailure &failure);
    [[nodiscard]] RevertAttempt attemptRevert(const QString &id);
    [[nodiscard]] RevertOutcome announce(const RevertAttempt &attempt);
    [[nodiscard]] Result<std::optional<QString>, RevertFailure> latestStanding();
    [[nodiscard]] RenameLogEntries::iterator find(const QString &id);

    void noteReported(const Entry &entry);
    void endAction();
    void storeUnlessInAction();
    [[nodiscard]] Result<void, SystemError> store();
    [[nodiscard]] const std::optional<RenameLogEntries> &decoded(const QByteArray &data);
    void readWithoutSession();
    void readAgain();
    void adopt(RenameLogEntries entries);
    void append(Entry entry);
    void countStanding(const Entry &entry, int change);
    void removeOldest(std::size_t count);

    Preferences &m_preferences;
    FileRenamer &m_renamer;
    FolderAccess &m_access;
    RenameLogEntries m_entries;
    QByteArray m_decodedData; ///< the latest array taken apart, and what was in it
    std::optional<RenameLogEntries> m_decodedEntries;
    std::unordered_map<std::string, int> m_standingNames; ///< how many standing renames led to a name
    int m_openActions = 0;
    bool m_isStoring = false;
    quint64 m_foreignChangesSeen = 0;
    std::optional<SystemError> m_journalError; ///< from reading it last
};

} // namespace Varlo
