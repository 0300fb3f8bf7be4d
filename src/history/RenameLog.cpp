// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/RenameLog.h"

#include "history/applyHistoryChanges.h"
#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include <algorithm>
#include <QScopedValueRollback>
#include <sys/stat.h>

namespace Varlo {

using std::filesystem::path;

RenameLog::RenameLog(Preferences &preferences, FileRenamer &renamer, FolderAccess &access, QObject *parent)
    : QAbstractListModel(parent)
    , m_preferences(preferences)
    , m_renamer(renamer)
    , m_access(access)
{
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (name == Preference::renameLog.name && !m_isStoring)
            readWithoutSession();
    });
    if (m_renamer.journal().isEmpty() || !store())
        readWithoutSession();
}

std::optional<SystemError> RenameLog::readError() const
{
    const auto preferencesError = m_preferences.readError();
    return preferencesError ? preferencesError : m_journalError;
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
    const std::string_view text = path.native();
    std::string bytes(text.substr(text.rfind('/') + 1)); // npos + 1 is 0
    const bool isAscii = std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
    if (isAscii)
        return bytes;
    const QString shown = QString::fromStdString(bytes);
    return shown.toStdString() == bytes ? shown.normalized(QString::NormalizationForm_C).toStdString() : bytes;
}

bool RenameLog::hasStandingRename(const std::filesystem::path &path) const
{
    // Equal paths end in equal names, so the names decide alone.
    return !m_standingNames.empty() && m_standingNames.contains(comparableName(path));
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

void RenameLog::append(Entry entry)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    countStanding(entry, 1);
    m_entries.push_back(std::move(entry));
    endInsertRows();
    if (m_entries.size() > maximumLogEntries)
        removeOldest(m_entries.size() - maximumLogEntries);
}

static bool areSameRenames(const RenameLogEntries &left, const RenameLogEntries &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](const RenameLogEntry &one, const RenameLogEntry &other) {
            return one.date == other.date && one.toPath == other.toPath && one.fromPath == other.fromPath;
        });
}

/// Shows these entries, and says no more than what differs from those shown now, so that a selection lives on.
void RenameLog::adopt(RenameLogEntries entries)
{
    if (entries == m_entries)
        return;
    const bool isSameRows = areSameRenames(entries, m_entries);
    if (!isSameRows)
        beginResetModel();
    m_entries = std::move(entries);
    m_standingNames.clear();
    for (const Entry &entry : m_entries)
        countStanding(entry, 1);
    if (!isSameRows)
        endResetModel();
    else
        emit dataChanged(index(0), index(rowCount() - 1), { UndoneRole });
}

RenameLog::Action RenameLog::beginAction()
{
    ++m_openActions;
    return Action(this);
}

void RenameLog::endAction()
{
    --m_openActions;
    storeUnlessInAction();
}

void RenameLog::storeUnlessInAction()
{
    // Longer than any batch makes it in one go; a journal must not grow without end in a very long one.
    constexpr qint64 longJournal = 8 * 1024 * 1024;
    const bool isLater = m_openActions > 0 || m_renamer.isRenaming();
    if (isLater && m_renamer.journal().size() < longJournal)
        return;
    // What the disk refuses now is in the journal, and the next action or the next start stores it.
    static_cast<void>(store());
}

/// Nothing for data that is no log. The array is mostly the one of the last time.
const std::optional<RenameLogEntries> &RenameLog::decoded(const QByteArray &data)
{
    if (!m_decodedEntries || m_decodedData != data) {
        m_decodedEntries = decodeRenameLog(data);
        m_decodedData = data;
    }
    return m_decodedEntries;
}

void RenameLog::readWithoutSession()
{
    const auto changes = m_renamer.journal().peek(maximumLogEntries);
    m_journalError = changes ? std::nullopt : std::optional(changes.error());
    adopt(applyHistoryChanges(decoded(m_preferences.data(Preference::renameLog)).value_or(RenameLogEntries {}),
        changes.value_or(std::vector<HistoryChange> {})));
}

/// Puts what the journal has into the preferences, and then out of the journal.
Result<void, SystemError> RenameLog::store()
{
    RenameJournal &journal = m_renamer.journal();
    const auto session = journal.enter();
    if (!session)
        return tl::unexpected(session.error());
    const QScopedValueRollback isStoring(m_isStoring, true);
    const std::vector<HistoryChange> changes = journal.changes(maximumLogEntries);
    RenameLogEntries entries;
    Result<void, SystemError> kept;
    const auto stored = m_preferences.update(Preference::renameLog, [&](const PreferenceValue &current) {
        const auto &data = std::get<QByteArray>(current);
        const auto &log = decoded(data);
        entries = applyHistoryChanges(log.value_or(RenameLogEntries {}), changes);
        if (changes.empty())
            return current;
        if (!log && !data.isEmpty())
            kept = m_preferences.keepCopy();
        return kept ? PreferenceValue(encodeRenameLog(entries)) : current;
    });
    if (!stored || !kept)
        return stored ? kept : stored;
    m_foreignChangesSeen = journal.foreignChanges();
    m_journalError.reset();
    // A list of files being renamed is ahead of its outcomes in the journal; its end comes through here again.
    if (!m_renamer.isRenaming())
        adopt(std::move(entries));
    return journal.forgetChanges();
}

/// Within a session: takes over what another process stored. The preferences read the disk only when they are changed.
void RenameLog::readAgain()
{
    if (m_foreignChangesSeen == m_renamer.journal().foreignChanges() && !readError())
        return;
    m_journalError.reset();
    m_foreignChangesSeen = m_renamer.journal().foreignChanges();
    const QScopedValueRollback isStoring(m_isStoring, true);
    static_cast<void>(
        m_preferences.update(Preference::renameLog, [](const PreferenceValue &current) { return current; }));
    adopt(applyHistoryChanges(decoded(m_preferences.data(Preference::renameLog)).value_or(RenameLogEntries {}),
        m_renamer.journal().changes(maximumLogEntries)));
}

void RenameLog::record(const path &from, const path &to)
{
    const std::optional<double> noted = m_renamer.takeDate(from, to);
    Entry entry { standardizedPath(from), standardizedPath(to), noted ? *noted : m_renamer.nextDate(), std::nullopt };
    if (!noted)
        noteReported(entry);
    append(std::move(entry));
    storeUnlessInAction();
}

/// A rename that was made by other means than ours, or that had nothing to move.
void RenameLog::noteReported(const Entry &entry)
{
    const RenameReported report { entry.fromPath.native(), entry.toPath.native(), entry.date };
    const auto session = m_renamer.journal().enter();
    if (session && m_renamer.journal().append({ report }, RenameJournal::Durability::Synced))
        return;
    const QScopedValueRollback isStoring(m_isStoring, true);
    static_cast<void>(m_preferences.update(Preference::renameLog, [&](const PreferenceValue &current) {
        const auto log = decodeRenameLog(std::get<QByteArray>(current));
        if (!log)
            return current;
        return PreferenceValue(
            encodeRenameLog(applyHistoryChanges(*log, { RenameAdded { entry.fromPath, entry.toPath, entry.date } })));
    }));
}

Result<void, SystemError> RenameLog::clear()
{
    const auto session = m_renamer.journal().enter();
    if (!session)
        return tl::unexpected(session.error());
    if (const auto noted = m_renamer.journal().append({ HistoryCleared {} }, RenameJournal::Durability::Synced); !noted)
        return noted;
    removeOldest(m_entries.size());
    storeUnlessInAction();
    return {};
}

RenameLogEntries::iterator RenameLog::find(const QString &id)
{
    return std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) { return entry.id() == id; });
}

static bool isMissing(const path &file)
{
    struct stat status { };
    return ::lstat(file.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

RenameLog::RevertAttempt RenameLog::attemptRevert(const QString &id)
{
    // From the look at the entry to its mark nobody else may take the same rename back.
    const auto session = m_renamer.journal().enter();
    if (!session)
        return tl::unexpected(RevertFailure(RenameFailure(HistoryNotWritable { session.error() })));
    readAgain();
    const auto entry = find(id);
    if (entry == m_entries.end() && readError())
        return tl::unexpected(RevertFailure(HistoryUnreadable { *readError() }));
    if (entry == m_entries.end() || !entry->isStanding())
        return std::nullopt;
    const path renamedPath = entry->toPath;
    if (isMissing(renamedPath))
        return tl::unexpected(RevertFailure(FileMissing {}));
    m_access.beginAccess(renamedPath.parent_path());
    const auto takenBack = m_renamer.takeBack(renamedPath, baseName(entry->fromPath), entry->date);
    if (!takenBack)
        return tl::unexpected(RevertFailure(takenBack.error()));
    countStanding(*entry, -1);
    entry->undoneAt = takenBack->undoneAt;
    const QModelIndex changed = index(static_cast<int>(entry - m_entries.begin()));
    emit dataChanged(changed, changed, { UndoneRole });
    storeUnlessInAction();
    return Reverted { renamedPath, takenBack->path };
}

Message RenameLog::description(const RevertFailure &failure)
{
    return std::visit(
        Overloaded {
            //: Error when a rename cannot be reverted because the file is gone
            [](FileMissing) {
                return Message("RenameLog",
                    QT_TRANSLATE_NOOP("RenameLog", "The file could not be found at its renamed location."));
            },
            //: Error when a rename cannot be reverted; %1 is the system's reason
            [](const HistoryUnreadable &refusal) {
                return Message("RenameLog", QT_TRANSLATE_NOOP("RenameLog", "The history could not be read: %1"),
                    { refusal.cause.description() });
            },
            [](const RenameFailure &refusal) { return Varlo::description(refusal); },
        },
        failure);
}

RenameLog::RevertOutcome RenameLog::announce(const RevertAttempt &attempt)
{
    if (!attempt)
        return tl::unexpected(description(attempt.error()));
    if (!*attempt)
        return std::optional<path> {};
    const Reverted done = **attempt;
    emit reverted(done.renamedPath, done.restoredPath);
    return done.restoredPath;
}

static bool isWorthAsking(const RenameFailure *failure) { return failure && isPermissionDenied(*failure); }

QCoro::Task<RenameLog::RevertOutcome> RenameLog::revert(QString id)
{
    const RevertAttempt attempt = attemptRevert(id);
    const auto entry = find(id);
    if (attempt || entry == m_entries.end() || !isWorthAsking(std::get_if<RenameFailure>(&attempt.error())))
        co_return announce(attempt);
    const QPointer<RenameLog> self = this;
    const path folder = entry->toPath.parent_path();
    const bool isGranted = co_await m_access.requestAccess(folder);
    if (!self)
        co_return std::optional<path> {};
    if (!isGranted)
        co_return announce(attempt);
    const RevertAttempt second = attemptRevert(id);
    co_return announce(second);
}

/// The entry to take back; nothing when none stands.
Result<std::optional<QString>, RenameLog::RevertFailure> RenameLog::latestStanding()
{
    const auto session = m_renamer.journal().enter();
    if (!session)
        return tl::unexpected(RevertFailure(RenameFailure(HistoryNotWritable { session.error() })));
    readAgain();
    const auto newest
        = std::find_if(m_entries.rbegin(), m_entries.rend(), [](const Entry &entry) { return entry.isStanding(); });
    if (newest != m_entries.rend())
        return newest->id();
    if (const auto error = readError())
        return tl::unexpected(RevertFailure(HistoryUnreadable { *error }));
    return std::nullopt;
}

QCoro::Task<RenameLog::RevertOutcome> RenameLog::revertLatest()
{
    const QPointer<RenameLog> self = this;
    Result<std::optional<QString>, RevertFailure> latest = latestStanding();
    while (latest && *latest) {
        const QString id = **latest;
        const RevertOutcome outcome = co_await revert(id);
        const bool isTakenByAnother = outcome && !*outcome;
        if (!isTakenByAnother || !self)
            co_return outcome;
        latest = latestStanding();
    }
    if (!latest)
        co_return tl::unexpected(description(latest.error()));
    co_return std::optional<path> {};
}

QStringList RenameLog::takeNotices() { return m_renamer.journal().takeNotices(); }

} // namespace Varlo
