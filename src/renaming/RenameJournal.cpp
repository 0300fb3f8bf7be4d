// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenameJournal.h"

#include "platform/linux/readStateFile.h"
#include "platform/linux/replaceFile.h"
#include "platform/linux/retryInterrupted.h"
#include "platform/linux/StateFolders.h"
#include "platform/shownPath.h"
#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using std::filesystem::path;
using Kind = StateFileError::Kind;

// Far more than any batch leaves behind, as the history is stored whenever the journal has grown by a few megabytes.
static constexpr qint64 sizeLimit = 64 * 1024 * 1024;

static auto latestError() { return tl::unexpected(SystemError::latest()); }

RenameJournal::RenameJournal(path folder)
    : m_folder(std::move(folder))
    , m_file(m_folder / "renames.journal")
{
}

Result<RenameJournal::Session, SystemError> RenameJournal::enter()
{
    if (m_depth == 0) {
        const auto ready
            = lock().and_then([this] { return readIfChanged(); }).and_then([this]() -> Result<void, SystemError> {
                  if (m_needsSettling)
                      return settle();
                  return {};
              });
        if (!ready) {
            m_lock.reset();
            return tl::unexpected(ready.error());
        }
    }
    ++m_depth;
    return Session(*this);
}

void RenameJournal::leave()
{
    if (--m_depth == 0)
        m_lock.reset();
}

Result<void, SystemError> RenameJournal::lock()
{
    if (const auto made = createStateFolder(m_folder); !made)
        return made;
    const QDeadlineTimer deadline(FileLock::defaultLimit);
    // Whoever renames a long list locks again and again. Having to queue first, it cannot shut out the one that waits.
    const auto queue = FileLock::acquire(m_folder / "renames.queue", FileLock::defaultLimit);
    if (!queue)
        return tl::unexpected(queue.error());
    const std::chrono::milliseconds timeLeft(deadline.remainingTime());
    auto held = FileLock::acquire(m_folder / "renames.lock", timeLeft);
    if (!held)
        return tl::unexpected(held.error());
    m_lock.emplace(std::move(*held));
    return {};
}

Result<void, SystemError> RenameJournal::readIfChanged()
{
    FileDescriptor file(retryInterrupted(
        [&] { return ::open(m_file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    struct stat status { };
    if (m_epoch == 0 || !file.isOpen() || ::fstat(file.get(), &status) != 0 || status.st_size < m_size)
        return read();
    QByteArray head(journalHeadSize, '\0');
    const ssize_t count = retryInterrupted([&] { return ::pread(file.get(), head.data(), journalHeadSize, 0); });
    if (count != journalHeadSize || head != journalHead(m_epoch))
        return read();
    // Another process's record would begin where ours end; a record begins with anything but zero.
    char next = 0;
    if (retryInterrupted([&] { return ::pread(file.get(), &next, 1, m_size); }) < 0 || next != 0)
        return read();
    m_reservedSize = status.st_size;
    m_descriptor = std::move(file);
    return {};
}

Result<void, SystemError> RenameJournal::read()
{
    ++m_foreignChanges;
    const auto content = readStateFile(m_file, sizeLimit);
    if (!content) {
        if (content.error().kind == Kind::System)
            return tl::unexpected(content.error().error);
        if (content.error().kind != Kind::Missing) {
            if (const auto isAside = setAside(); !isAside)
                return isAside;
        }
        return rewrite({});
    }
    const DecodedJournal journal = decodeJournal(*content);
    m_needsSettling = !intentsWithoutOutcome(journal.records).empty();
    if (journal.isDamaged) {
        if (const auto kept = keepDamaged(*content); !kept)
            return kept;
        return rewrite(journal.records);
    }
    if (journal.wholeSize == 0)
        return rewrite({});
    m_descriptor = FileDescriptor(retryInterrupted(
        [&] { return ::open(m_file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    if (!m_descriptor.isOpen())
        return latestError();
    // What a power cut left of the record being written last, and room that a process reserved for more.
    if (journal.wholeSize < content->size()
        && retryInterrupted([&] { return ::ftruncate(m_descriptor.get(), journal.wholeSize); }) != 0)
        return latestError();
    m_records = journal.records;
    m_epoch = journal.epoch;
    m_size = journal.wholeSize;
    m_reservedSize = m_size;
    return {};
}

/// Calls `create` with "renames.damaged-1.journal", -2 and so on until one is not taken.
template <typename Create> static Result<path, SystemError> makeDamagedFile(const path &folder, const Create &create)
{
    constexpr int numbers = 1000;
    for (int number = 1; number <= numbers; ++number) {
        const path name = folder / ("renames.damaged-" + std::to_string(number) + ".journal");
        const Result<void, SystemError> created = create(name);
        if (created)
            return name;
        if (created.error().code != EEXIST)
            return tl::unexpected(created.error());
    }
    return tl::unexpected(SystemError { EEXIST });
}

Result<void, SystemError> RenameJournal::keepDamaged(const QByteArray &content)
{
    const auto kept = makeDamagedFile(m_folder, [&](const path &name) { return createFile(name, content); });
    if (!kept)
        return tl::unexpected(kept.error());
    //: %1 and %2 are paths
    m_notices.append({ "RenameJournal",
        QT_TRANSLATE_NOOP("RenameJournal",
            "The list of the latest renames in \"%1\" was damaged, and some may be missing from the history. The "
            "damaged file was kept as \"%2\"."),
        { shownPath(m_file), shownPath(*kept) } });
    return {};
}

Result<void, SystemError> RenameJournal::setAside()
{
    const auto kept = makeDamagedFile(m_folder, [&](const path &name) -> Result<void, SystemError> {
        if (::renameat2(AT_FDCWD, m_file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0)
            return latestError();
        return {};
    });
    if (!kept)
        return tl::unexpected(kept.error());
    //: %1 and %2 are paths
    m_notices.append({ "RenameJournal",
        QT_TRANSLATE_NOOP(
            "RenameJournal", "\"%1\" could not be read as the list of the latest renames. It was kept as \"%2\"."),
        { shownPath(m_file), shownPath(*kept) } });
    return {};
}

static quint64 newEpoch()
{
    // Zero stands for a file that was never read.
    return std::max<quint64>(QRandomGenerator::system()->generate64(), 1);
}

Result<void, SystemError> RenameJournal::rewrite(std::vector<JournalRecord> records)
{
    const quint64 epoch = newEpoch();
    const QByteArray content = journalHead(epoch) + encodeRecords(records);
    removeReplacementLeftovers(m_file);
    if (const auto replaced = replaceFile(m_file, content, ReplacedMode::OwnerOnly); !replaced)
        return replaced;
    m_descriptor = FileDescriptor(retryInterrupted(
        [&] { return ::open(m_file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    if (!m_descriptor.isOpen())
        return latestError();
    m_records = std::move(records); // and with it the memory of those forgotten
    m_epoch = epoch;
    m_size = content.size();
    m_reservedSize = m_size;
    return {};
}

static Result<void, SystemError> writeAt(int file, QByteArrayView bytes, qint64 offset)
{
    while (!bytes.isEmpty()) {
        const ssize_t count
            = retryInterrupted([&] { return ::pwrite(file, bytes.data(), static_cast<size_t>(bytes.size()), offset); });
        if (count < 0)
            return latestError();
        if (count == 0)
            return tl::unexpected(SystemError { ENOSPC });
        bytes = bytes.sliced(count);
        offset += count;
    }
    return {};
}

/// Fills the file with zeros ahead of the records of a long batch. What is then written over them is synced in half the
/// time that a growing file takes, as its size and its place on the disk are known.
void RenameJournal::reserve(qint64 byteCount)
{
    constexpr qint64 longEnough = 8 * 1024; // a first group of some dozen renames, of which more may follow
    constexpr qint64 most = 1024 * 1024;
    if (m_size < longEnough || m_size + byteCount <= m_reservedSize)
        return;
    const QByteArray zeros(std::max(byteCount, std::min(m_size, most)), '\0');
    if (writeAt(m_descriptor.get(), zeros, m_size))
        m_reservedSize = m_size + zeros.size();
    else // on a disk that is nearly full the room is better left to the records
        static_cast<void>(retryInterrupted([&] { return ::ftruncate(m_descriptor.get(), m_size); }));
}

Result<void, SystemError> RenameJournal::append(std::vector<JournalRecord> records, Durability durability)
{
    const QByteArray bytes = encodeRecords(records);
    reserve(bytes.size());
    auto written = writeAt(m_descriptor.get(), bytes, m_size);
    if (written && durability == Durability::Synced
        && retryInterrupted([&] { return ::fdatasync(m_descriptor.get()); }) != 0)
        written = latestError();
    if (!written) {
        // Should this fail too, the next session reads what is there and looks at the files.
        static_cast<void>(retryInterrupted([&] { return ::ftruncate(m_descriptor.get(), m_size); }));
        m_reservedSize = m_size;
        m_needsSettling = true;
        return written;
    }
    m_size += bytes.size();
    m_reservedSize = std::max(m_reservedSize, m_size);
    m_records.insert(m_records.end(), std::make_move_iterator(records.begin()), std::make_move_iterator(records.end()));
    return {};
}

bool RenameJournal::isEmpty() const
{
    struct stat status { };
    if (::lstat(m_file.c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR;
    return S_ISREG(status.st_mode) && status.st_size == journalHeadSize;
}

std::vector<HistoryChange> RenameJournal::changes(std::size_t maximumAdditions) const
{
    return historyChanges(m_records, maximumAdditions);
}

Result<std::vector<HistoryChange>, SystemError> RenameJournal::peek(std::size_t maximumAdditions) const
{
    if (m_depth > 0)
        return changes(maximumAdditions);
    const auto content = readStateFile(m_file, sizeLimit);
    if (content)
        return historyChanges(decodeJournal(*content).records, maximumAdditions);
    if (content.error().kind == Kind::System)
        return tl::unexpected(content.error().error);
    return std::vector<HistoryChange> {};
}

static bool isLinkingMark(const JournalRecord &record, const std::vector<RenameIntent> &intents)
{
    const auto *mark = std::get_if<LinkingBegun>(&record);
    return mark && std::any_of(intents.begin(), intents.end(), [&](const RenameIntent &intent) {
        return intent.id == mark->id;
    });
}

/// In place and without a sync: whatever a power cut leaves of this and of the records before is changes that the
/// history has, and it takes them a second time without harm.
Result<void, SystemError> RenameJournal::empty()
{
    const quint64 epoch = newEpoch(); // first: nobody may take what comes next for what was there
    if (const auto written = writeAt(m_descriptor.get(), journalHead(epoch), 0); !written)
        return written;
    m_epoch = epoch;
    if (retryInterrupted([&] { return ::ftruncate(m_descriptor.get(), journalHeadSize); }) != 0)
        return latestError();
    m_records = {}; // and with it the memory
    m_size = journalHeadSize;
    m_reservedSize = m_size;
    return {};
}

Result<void, SystemError> RenameJournal::forgetChanges()
{
    const std::vector<RenameIntent> intents = intentsWithoutOutcome(m_records);
    std::vector<JournalRecord> left(intents.begin(), intents.end());
    std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(left),
        [&](const JournalRecord &record) { return isLinkingMark(record, intents); });
    if (left.size() == m_records.size())
        return {};
    if (left.empty())
        return empty();
    return rewrite(std::move(left));
}

namespace {

enum class FoundOutcome { Done, Dropped, Unknown };

/// The device does not count: after a restart the same file system may have another number.
bool isIntended(const Result<NamedFile, SystemError> &found, const RenameIntent &intent)
{
    if (!found || !found->isRenamable() || found->identity.inode != intent.inode)
        return false;
    const bool knowsBirthTimes = found->birthTimeNs != 0 && intent.birthTimeNs != 0;
    return !knowsBirthTimes || found->birthTimeNs == intent.birthTimeNs;
}

/// The file answers to both names: because the volume ignores the case, or because it has two links.
FoundOutcome outcomeUnderBothNames(const RenameFolder &folder, const RenameIntent &intent, bool hasBegunLinking)
{
    const auto listsFrom = folder.lists(intent.from);
    const auto listsTo = folder.lists(intent.to);
    if (!listsFrom || !listsTo)
        return FoundOutcome::Unknown;
    if (!*listsTo)
        return FoundOutcome::Dropped;
    if (!*listsFrom)
        return FoundOutcome::Done;
    if (!hasBegunLinking) // a link that somebody else made
        return FoundOutcome::Dropped;
    const auto file = folder.find(intent.to);
    return file && folder.unlinkExtraName(intent.from, *file) ? FoundOutcome::Done : FoundOutcome::Unknown;
}

FoundOutcome outcomeOnDisk(const RenameIntent &intent, bool hasBegunLinking)
{
    const auto folder = RenameFolder::open(intent.folder);
    if (!folder)
        return FoundOutcome::Unknown;
    const bool isAtOldName = isIntended(folder->find(intent.from), intent);
    const bool isAtNewName = isIntended(folder->find(intent.to), intent);
    if (isAtOldName && isAtNewName)
        return outcomeUnderBothNames(*folder, intent, hasBegunLinking);
    if (isAtNewName) {
        folder->sync(); // the history is about to say so
        return FoundOutcome::Done;
    }
    return isAtOldName ? FoundOutcome::Dropped : FoundOutcome::Unknown;
}

} // namespace

/// Looks where each file is whose rename has no outcome. Where it is nowhere, as on a drive that is not there now, the
/// intent stays for later and the user is told once.
Result<void, SystemError> RenameJournal::settle()
{
    std::vector<JournalRecord> marks;
    bool hasUntold = false;
    for (const RenameIntent &intent : intentsWithoutOutcome(m_records)) {
        const bool hasBegunLinking = std::any_of(m_records.begin(), m_records.end(),
            [&](const JournalRecord &record) { return isLinkingMark(record, { intent }); });
        switch (outcomeOnDisk(intent, hasBegunLinking)) {
        case FoundOutcome::Done:
            marks.push_back(RenameDone { intent.id });
            break;
        case FoundOutcome::Dropped:
            marks.push_back(RenameDropped { intent.id });
            break;
        case FoundOutcome::Unknown:
            hasUntold = hasUntold || !intent.isTold;
            break;
        }
    }
    if (!marks.empty()) {
        if (const auto appended = append(std::move(marks), Durability::Synced); !appended)
            return appended;
    }
    m_needsSettling = false;
    return hasUntold ? tellOfUnknown() : Result<void, SystemError> {};
}

Result<void, SystemError> RenameJournal::tellOfUnknown()
{
    std::vector<JournalRecord> records = m_records;
    for (const RenameIntent &unknown : intentsWithoutOutcome(m_records)) {
        if (unknown.isTold)
            continue;
        const auto record = std::find(records.begin(), records.end(), JournalRecord(unknown));
        std::get<RenameIntent>(*record).isTold = true;
        //: %1 and %2 are file names, %3 is a folder
        m_notices.append({ "RenameJournal",
            QT_TRANSLATE_NOOP("RenameJournal",
                "Renaming \"%1\" to \"%2\" was interrupted, and the file was found under neither name in \"%3\"."),
            { shownPath(unknown.from), shownPath(unknown.to), shownPath(unknown.folder) } });
    }
    return rewrite(std::move(records));
}

QStringList RenameJournal::takeNotices()
{
    const QList<Message> notices = std::exchange(m_notices, {});
    return { notices.begin(), notices.end() };
}

} // namespace Varlo
