// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/FileLock.h"
#include "platform/Message.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include "renaming/JournalRecord.h"
#include "renaming/RenameFolder.h"
#include <filesystem>
#include <memory>
#include <QStringList>
#include <span>
#include <vector>

namespace Varlo {

/// What is about to be renamed, and what was renamed since the history was last stored: one file that every Varlo of
/// the user appends to. A rename is noted down before it is made, so none is forgotten, whatever kills the process.
/// docs/renaming.md has the whole picture. Lives on the main thread.
///
/// Beside "renames.journal" in its folder stand "renames.lock" and "renames.queue", which are only locked.
class RenameJournal {
public:
    /// Keeps every other process out of the journal, and so out of renaming, while it lives. Sessions may be nested.
    class Session {
    public:
        Session(Session &&other) noexcept
            : m_journal(std::exchange(other.m_journal, nullptr))
        {
        }
        ~Session()
        {
            if (m_journal)
                m_journal->leave();
        }

    private:
        friend class RenameJournal;
        explicit Session(RenameJournal &journal)
            : m_journal(&journal)
        {
        }
        RenameJournal *m_journal;
    };
    enum class Durability { Synced, Unsynced };

    /// The folder is made when it is needed first.
    explicit RenameJournal(std::filesystem::path folder);

    /// Waits at most 5 seconds for others (EAGAIN), reads what they wrote, and settles every rename that some process
    /// began and did not live to finish.
    [[nodiscard]] Result<Session, SystemError> enter();

    // Within a session:

    /// On an error nothing of it is in the file.
    [[nodiscard]] Result<void, SystemError> append(std::vector<JournalRecord> records, Durability durability);
    /// What the history lacks, in the order in which it happened; of the additions only the newest ones.
    [[nodiscard]] std::vector<HistoryChange> changes(std::size_t maximumAdditions = allAdditions) const;
    /// A rename of this process ended in a way that the files have to tell: the next session looks at them.
    void settleNextTime() { m_needsSettling = true; }
    /// Forgets the changes, now that the history has them. Renames without an outcome stay.
    [[nodiscard]] Result<void, SystemError> forgetChanges();

    // At any time:

    /// True when the file is missing or holds no record.
    [[nodiscard]] bool isEmpty() const;
    /// The changes as another process may just be writing them; nothing is settled and nobody waits. What only a
    /// session can set aside reads as none.
    [[nodiscard]] Result<std::vector<HistoryChange>, SystemError> peek(
        std::size_t maximumAdditions = allAdditions) const;
    /// Grows whenever a session found that another process had written, or stored the history, since the last one.
    [[nodiscard]] quint64 foreignChanges() const { return m_foreignChanges; }
    [[nodiscard]] qint64 size() const { return m_size; }
    /// Messages about damage, and about renames whose file is gone, each given out once.
    [[nodiscard]] QStringList takeNotices();

private:
    void leave();
    [[nodiscard]] Result<void, SystemError> lock();
    [[nodiscard]] Result<void, SystemError> readIfChanged();
    [[nodiscard]] Result<void, SystemError> read();
    [[nodiscard]] Result<void, SystemError> keepDamaged(const QByteArray &content);
    [[nodiscard]] Result<void, SystemError> setAside();
    [[nodiscard]] Result<void, SystemError> empty();
    [[nodiscard]] Result<void, SystemError> rewrite(std::vector<JournalRecord> records);
    void reserve(qint64 byteCount);
    [[nodiscard]] Result<void, SystemError> settle();
    [[nodiscard]] Result<void, SystemError> tellOfUnknown();

    std::filesystem::path m_folder;
    std::filesystem::path m_file;
    int m_depth = 0; ///< of nested sessions
    std::optional<FileLock> m_lock;
    FileDescriptor m_descriptor;
    std::vector<JournalRecord> m_records;
    quint64 m_epoch = 0; ///< the number in the file's head; each rewritten file has another
    qint64 m_size = 0; ///< of what was read or written
    qint64 m_reservedSize = 0; ///< the file's own: behind `m_size` it has zeros, for records to come
    quint64 m_foreignChanges = 0;
    bool m_needsSettling = false;
    QList<Message> m_notices;
};

} // namespace Varlo
