// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/RenamerViewModel.h"

#include "platform/Characters.h"
#include "platform/localPath.h"
#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include "renaming/applyFinderTags.h"
#include "renaming/FinderPermission.h"
#include "renaming/renameWithFinder.h"
#include "renaming/targetName.h"
#include "suggestion/interpretReply.h"
#include "suggestion/sanitizeFilename.h"
#include <algorithm>
#include <array>
#include <bit>
#include <QCoroFuture>
#include <QCoroTimer>
#include <QElapsedTimer>
#include <QPointer>
#include <QRandomGenerator>
#include <QtConcurrentRun>

namespace Varlo {

using namespace std::chrono_literals;

/// Whether the user may type a name for the file: once it was looked at, until it is renamed.
static bool hasNameField(const FileItem &item)
{
    return std::visit(Overloaded {
                          [](FileItem::Pending) { return false; },
                          [](FileItem::Processing) { return false; },
                          [](FileItem::Suggested) { return true; },
                          [](FileItem::Renamed) { return false; },
                          [](FileItem::AlreadyRenamed) { return true; },
                          [](FileItem::NoTextFound) { return true; },
                          [](FileItem::NotSupportedYet) { return false; },
                          [](const FileItem::Failed &) { return true; },
                      },
        item.status);
}

/// Whether a rename action may touch the file: not while it waits or is worked on, not twice, and not without a name.
static bool isRenamable(const FileItem &item) { return !item.suggestedName.isEmpty() && hasNameField(item); }

static QStringList visibleTags(const QStringList &tags)
{
    constexpr qsizetype longestTag = 30;
    constexpr qsizetype mostBytes = 240; // a letter may carry any number of accents
    QStringList shown;
    for (const QString &tag : tags)
        shown.append(visibleText(firstCharacters(tag, longestTag, mostBytes)));
    return shown;
}

RenamerViewModel::RenamerViewModel(const Collaborators &collaborators, QObject *parent)
    : QAbstractListModel(parent)
    , m_with(collaborators)
    , m_rowsByPath(0, PathHash { &m_files }, PathEqual { &m_files })
{
    connect(&m_with.renameLog, &RenameLog::reverted, this, &RenamerViewModel::takeBack);
}

int RenamerViewModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_announcedRows; }

QVariant RenamerViewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FileItem &item = m_files[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return item.id;
    case PathRole:
        return visibleText(std::filesystem::path(item.path));
    case Qt::DisplayRole:
    case FileNameRole:
        return visibleText(item.path.filename());
    case ExtensionRole: {
        const std::string extension = pathExtension(item.path.filename());
        return extension.empty() ? QString() : u'.' + visibleText(std::filesystem::path(extension));
    }
    case FolderNameRole:
        return visibleText(item.path.parentPath().filename());
    case StatusRole:
        return rawValue(item.status);
    case StatusLabelRole:
        return label(item.status);
    case MessageRole: {
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        return failed ? visibleMessage(failed->message) : QString();
    }
    case SuggestedNameRole:
        return editableName(item.suggestedName);
    case SuggestedTagsRole:
        return visibleTags(item.suggestedTags);
    case PreviousNameRole:
        return visibleText(item.previousName.value_or(QString()));
    case ByteSizeRole:
        return item.byteSize;
    case IconNameRole:
        return iconName(item);
    case HasNameFieldRole:
        return hasNameField(item);
    case CanRenameRole:
        return isRenamable(item);
    default:
        return {};
    }
}

QHash<int, QByteArray> RenamerViewModel::roleNames() const
{
    return { { IdRole, "itemId" }, { PathRole, "path" }, { FileNameRole, "fileName" }, { ExtensionRole, "extension" },
        { FolderNameRole, "folderName" }, { StatusRole, "status" }, { StatusLabelRole, "statusLabel" },
        { MessageRole, "message" }, { SuggestedNameRole, "suggestedName" }, { SuggestedTagsRole, "suggestedTags" },
        { PreviousNameRole, "previousName" }, { ByteSizeRole, "byteSize" }, { IconNameRole, "iconName" },
        { HasNameFieldRole, "hasNameField" }, { CanRenameRole, "canRename" } };
}

void RenamerViewModel::setFilenameLanguageOption(const FilenameLanguageOption &option)
{
    if (m_filenameLanguageOption == option)
        return;
    m_filenameLanguageOption = option;
    emit filenameLanguageOptionChanged();
    resetSuggestions();
}

void RenamerViewModel::setSelectedTemplateID(const std::optional<QString> &id)
{
    if (m_selectedTemplateID == id)
        return;
    m_selectedTemplateID = id;
    emit selectedTemplateIDChanged();
    resetSuggestions();
}

std::optional<NameTemplate> RenamerViewModel::selectedTemplate() const
{
    return m_selectedTemplateID ? m_with.templateStore.nameTemplate(*m_selectedTemplateID) : std::nullopt;
}

qsizetype RenamerViewModel::completedCount() const
{
    return static_cast<qsizetype>(m_files.size()) - m_pendingCount - m_processingCount;
}

QCoro::Task<void> RenamerViewModel::addFiles(
    std::vector<std::filesystem::path> paths, bool reportEmpty, std::vector<SuggestedFile> suggestions)
{
    const QPointer<RenamerViewModel> self = this;
    const quint64 clearCount = m_clearCount;
    co_await m_admissionTurns.begin();
    if (!self)
        co_return;

    std::ranges::transform(paths, paths.begin(), standardizedPath);
    const auto walk = std::make_shared<FolderWalk>(std::move(paths));
    Suggestions suggestionOf;
    for (const SuggestedFile &file : suggestions)
        suggestionOf.emplace(file.path.native(), &file);
    qsizetype admitted = 0;
    while (m_clearCount == clearCount) {
        // The disk may be slow or asleep, so it is never waited for on this thread.
        QFuture<std::vector<FolderWalk::File>> slice = QtConcurrent::run([walk] { return walk->next(20ms); });
        std::vector<FolderWalk::File> found = co_await slice;
        if (!self)
            co_return;
        if (found.empty() || m_clearCount != clearCount)
            break;
        admitted += admit(std::move(found), suggestionOf);
    }
    if (m_clearCount == clearCount) {
        if (admitted > 0)
            setDropFeedback({});
        else if (reportEmpty)
            setDropFeedback(DropFeedback::NothingRenameable);
    }
    m_admissionTurns.end();
}

std::size_t RenamerViewModel::PathHash::operator()(int row) const
{
    return (*this)(std::string_view((*files)[static_cast<std::size_t>(row)].path.native()));
}

bool RenamerViewModel::PathEqual::operator()(int row, int other) const
{
    return row == other || (*this)(std::string_view((*files)[static_cast<std::size_t>(other)].path.native()), row);
}

bool RenamerViewModel::PathEqual::operator()(std::string_view path, int row) const
{
    return (*files)[static_cast<std::size_t>(row)].path.native() == path;
}

/// A random UUID (RFC 9562, version 4). QUuid::createUuid() asks the system for each, which takes longer than to admit
/// a file; an id here only has to differ from the others of this process.
static QUuid makeId()
{
    std::array<quint32, 4> words {};
    QRandomGenerator::global()->fillRange(words.data(), words.size());
    const auto timeHigh = static_cast<ushort>((words[1] & 0x0FFF) | 0x4000);
    const auto bytes = std::bit_cast<std::array<uchar, 8>>(std::array { words[2], words[3] });
    return QUuid(words[0], static_cast<ushort>(words[1] >> 16), timeHigh, static_cast<uchar>((bytes[0] & 0x3F) | 0x80),
        bytes[1], bytes[2], bytes[3], bytes[4], bytes[5], bytes[6], bytes[7]);
}

qsizetype RenamerViewModel::admit(std::vector<FolderWalk::File> found, const Suggestions &suggestions)
{
    const int firstRow = m_announcedRows;
    std::vector<int> knownRows;
    for (FolderWalk::File &file : found) {
        const auto row = static_cast<int>(m_files.size());
        FileItem &item = m_files.emplace_back();
        item.path = std::move(file.path);
        if (const auto [same, isNew] = m_rowsByPath.insert(row); !isNew) {
            knownRows.push_back(*same);
            m_files.pop_back();
            continue;
        }
        item.id = makeId();
        item.byteSize = file.byteSize;
        item.identity = file.identity;
        if (m_with.renameLog.hasStandingRename(item.path))
            item.status = FileItem::AlreadyRenamed {};
        else
            takeSuggestion(item, suggestions);
        m_rowOfId.insert(item.id, row);
        m_totalBytes += item.byteSize;
        count(item, +1);
    }
    const auto rowsNow = static_cast<int>(m_files.size());
    if (rowsNow > firstRow) {
        beginInsertRows({}, firstRow, rowsNow - 1);
        m_announcedRows = rowsNow;
        endInsertRows();
        emit countsChanged();
    }
    takeSuggestions(knownRows, suggestions);
    return rowsNow - firstRow;
}

/// Cleaned again, since whoever speaks to this process may have made it up.
bool RenamerViewModel::takeSuggestion(FileItem &item, const Suggestions &suggestions)
{
    const auto found = suggestions.find(item.path.native());
    if (found == suggestions.end() || !std::holds_alternative<FileItem::Pending>(item.status)
        || item.identity != found->second->identity)
        return false;
    const QString name = sanitizeFilename(found->second->name);
    if (name.isEmpty())
        return false;
    item.status = FileItem::Suggested {};
    item.suggestedName = name;
    item.suggestedTags = parseTags(found->second->tags.join(u','));
    return true;
}

void RenamerViewModel::takeSuggestions(const std::vector<int> &rows, const Suggestions &suggestions)
{
    if (suggestions.empty())
        return;
    for (const int row : rows) {
        FileItem item = m_files[static_cast<std::size_t>(row)];
        if (!takeSuggestion(item, suggestions))
            continue;
        setStatus(row, item.status);
        setSuggestion(row, item.suggestedName, item.suggestedTags);
    }
}

void RenamerViewModel::clear()
{
    ++m_clearCount;
    beginResetModel();
    m_rowsByPath.clear(); // before the paths that it goes by
    m_files.clear();
    m_announcedRows = 0;
    m_rowOfId.clear();
    m_pendingCount = 0;
    m_processingCount = 0;
    m_renamableCount = 0;
    m_keyMissingCount = 0;
    m_totalBytes = 0;
    endResetModel();
    emit countsChanged();
    setDropFeedback({});
    if (std::exchange(m_lastSuggestSeconds, std::nullopt))
        emit lastSuggestSecondsChanged();
}

QCoro::Task<void> RenamerViewModel::suggestAll()
{
    if (m_isSuggesting)
        co_return;
    const QPointer<RenamerViewModel> self = this;
    m_isSuggesting = true;
    emit isSuggestingChanged();
    QElapsedTimer timer;
    timer.start();
    while (hasPending()) {
        co_await runPass();
        if (!self)
            co_return;
    }
    m_lastSuggestSeconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    emit lastSuggestSecondsChanged();
    m_isSuggesting = false;
    emit isSuggestingChanged();
}

QCoro::Task<void> RenamerViewModel::runPass()
{
    const auto pass = std::make_shared<Pass>();
    for (const FileItem &item : m_files) {
        if (std::holds_alternative<FileItem::Pending>(item.status))
            pass->ids.push_back(item.id);
    }
    pass->language = resolvedLanguage(m_filenameLanguageOption, m_with.locale);
    pass->nameTemplate = selectedTemplate();
    pass->includeTags = m_with.preferences.boolean(Preference::writeFinderTags);

    std::vector<QCoro::Task<void>> lanes;
    for (int lane = 0; lane < maximumInFlight; ++lane)
        lanes.push_back(runLane(pass));
    for (QCoro::Task<void> &lane : lanes)
        co_await lane;
}

QCoro::Task<void> RenamerViewModel::runLane(std::shared_ptr<Pass> pass)
{
    const QPointer<RenamerViewModel> self = this;
    while (pass->next < pass->ids.size()) {
        const QUuid id = pass->ids[pass->next++];
        const std::optional<int> row = rowOf(id);
        if (!row)
            co_return; // the list was cleared: nothing that follows is there any more
        setStatus(*row, FileItem::Processing {});
        const std::filesystem::path path = m_files[static_cast<std::size_t>(*row)].path;
        const SuggestionResult result = co_await suggestionFor(id, path, pass);
        if (!self)
            co_return;
        apply(result);
    }
}

QCoro::Task<RenamerViewModel::SuggestionResult> RenamerViewModel::suggestionFor(
    QUuid id, std::filesystem::path path, std::shared_ptr<const Pass> pass)
{
    NameSuggestionService &suggester = m_with.suggester; // outlives the batch, which may be gone after the reading
    SuggestionResult result;
    result.id = id;

    const Extraction extraction = co_await m_with.reader.read(path);
    const auto *content = std::get_if<FileContent>(&extraction);
    if (!content) {
        result.status = std::visit(Overloaded {
                                       [](const FileContent &) -> FileItem::Status { Q_UNREACHABLE(); },
                                       [](const Unreadable &unreadable) -> FileItem::Status {
                                           return FileItem::Failed { unreadable.message };
                                       },
                                       [](NoTextFound) -> FileItem::Status { return FileItem::NoTextFound {}; },
                                       [](NotSupportedYet) -> FileItem::Status { return FileItem::NotSupportedYet {}; },
                                   },
            extraction);
        co_return result;
    }

    SuggestionRequest request { *content, shownPath(baseName(path)), pass->language, pass->nameTemplate,
        pass->includeTags };
    const Result<NameSuggestion, NameSuggestionError> suggestion = co_await suggester.suggestName(std::move(request));
    if (suggestion) {
        result.status = FileItem::Suggested {};
        result.name = suggestion->name;
        result.tags = suggestion->tags;
    } else if (std::holds_alternative<NoReadableContent>(suggestion.error())) {
        result.status = FileItem::NoTextFound {};
    } else {
        result.status = FileItem::Failed { description(suggestion.error()), isForWantOfKey(suggestion.error()) };
    }
    co_return result;
}

void RenamerViewModel::apply(const SuggestionResult &result)
{
    const std::optional<int> row = rowOf(result.id);
    if (!row)
        return;
    setStatus(*row, result.status);
    setSuggestion(*row, result.name, result.tags);
    emit suggestionFinished(*row);
}

void RenamerViewModel::resetSuggestions()
{
    for (int row = 0; row < rowCount(); ++row) {
        if (!std::holds_alternative<FileItem::Suggested>(m_files[static_cast<std::size_t>(row)].status))
            continue;
        setStatus(row, FileItem::Pending {});
        setSuggestion(row, {}, {});
    }
}

void RenamerViewModel::askAgainForWantOfKey()
{
    for (int row = 0; row < rowCount(); ++row) {
        const FileItem &item = m_files[static_cast<std::size_t>(row)];
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        if (failed && failed->isForWantOfKey && item.suggestedName.isEmpty())
            setStatus(row, FileItem::Pending {});
    }
}

void RenamerViewModel::setSuggestedName(int row, const QString &name)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    if (item.suggestedName == name || std::holds_alternative<FileItem::Renamed>(item.status))
        return;
    count(item, -1);
    item.suggestedName = name;
    count(item, +1);
    announce(row, { SuggestedNameRole, CanRenameRole });
    emit countsChanged();
}

std::vector<QUuid> RenamerViewModel::renamableFiles() const
{
    std::vector<QUuid> ids;
    for (const FileItem &item : m_files) {
        if (isRenamable(item))
            ids.push_back(item.id);
    }
    return ids;
}

QCoro::Task<void> RenamerViewModel::rename(QUuid id)
{
    std::vector<QUuid> ids { id };
    co_await renameInTurn(std::move(ids));
}

QCoro::Task<void> RenamerViewModel::renameAll()
{
    std::vector<QUuid> ids = renamableFiles();
    co_await renameInTurn(std::move(ids));
}

QCoro::Task<void> RenamerViewModel::renameInTurn(std::vector<QUuid> ids)
{
    const QPointer<RenamerViewModel> self = this;
    co_await m_renameTurns.begin();
    if (!self)
        co_return;

    m_renameDoneCount = 0;
    m_renameTotalCount = static_cast<int>(ids.size());
    emit renameProgressChanged();
    emit isRenamingChanged();
    m_isRenameStopped = false;
    m_with.folderAccess.forgetDeclined();
    {
        const RenameLog::Action action = m_with.renameLog.beginAction();
        for (std::size_t next = 0; next < ids.size() && !m_isRenameStopped;) {
            const std::optional<QUuid> refused = renameSome(ids, next);
            if (refused)
                co_await askForFolderAndRetry(*refused);
            else
                co_await QCoro::sleepFor(0ms); // back to the event loop
            if (!self)
                co_return;
            m_renameDoneCount = static_cast<int>(next);
            emit renameProgressChanged();
        }
    }
    m_renameTurns.end();
    emit isRenamingChanged();
}

std::optional<QUuid> RenamerViewModel::renameSome(const std::vector<QUuid> &ids, std::size_t &next)
{
    const bool isFinderAllowed = finderPermission(m_with.automation, false) == FinderPermission::Granted;
    const std::size_t groupSize = isFinderAllowed ? 1 : FileRenamer::groupSize;
    std::vector<QUuid> group;
    std::vector<std::size_t> positions;
    while (next < ids.size() && group.size() < groupSize) {
        const std::optional<int> row = rowOf(ids[next]);
        if (row && isRenamable(m_files[static_cast<std::size_t>(*row)])) {
            group.push_back(ids[next]);
            positions.push_back(next);
        }
        ++next;
    }
    if (isFinderAllowed && !group.empty() && renameThroughFinder(group.front()))
        return {};
    const std::optional<std::size_t> refused = renameDirectly(group);
    if (!refused)
        return {};
    next = positions[*refused] + 1; // those behind it were not tried and come again
    return group[*refused];
}

bool RenamerViewModel::renameThroughFinder(const QUuid &id)
{
    const FileItem item = m_files[static_cast<std::size_t>(*rowOf(id))];
    const auto newPath = renameWithFinder(*m_with.automation, item.path, item.suggestedName);
    if (!newPath && std::holds_alternative<AutomationDenied>(newPath.error()))
        return false;
    if (newPath)
        finishRename(id, item.path, *newPath);
    else
        failRename(id, description(newPath.error()));
    return true;
}

std::optional<std::size_t> RenamerViewModel::renameDirectly(const std::vector<QUuid> &ids)
{
    std::vector<RenameRequest> requests;
    for (const QUuid &id : ids) {
        requests.push_back(renameRequest(m_files[static_cast<std::size_t>(*rowOf(id))]));
        m_with.folderAccess.beginAccess(requests.back().path.parent_path());
    }
    std::optional<std::size_t> refused;
    m_with.renamer.renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
        if (outcome)
            finishRename(ids[index], requests[index].path, *outcome);
        else if (isPermissionDenied(outcome.error()))
            refused = index;
        else
            failRename(ids[index], description(outcome.error()));
        return refused || m_isRenameStopped ? FileRenamer::Next::Stop : FileRenamer::Next::GoOn;
    });
    return refused;
}

QCoro::Task<void> RenamerViewModel::askForFolderAndRetry(QUuid id)
{
    const QPointer<RenamerViewModel> self = this;
    std::optional<int> row = rowOf(id);
    if (!row)
        co_return;
    const std::filesystem::path folder = m_files[static_cast<std::size_t>(*row)].path.parentPath();
    const bool isGranted = co_await m_with.folderAccess.requestAccess(folder);
    if (!self)
        co_return;
    row = rowOf(id);
    if (!row || !isRenamable(m_files[static_cast<std::size_t>(*row)]))
        co_return;
    if (!isGranted) {
        //: Shown in a file's row when the user did not allow access to its folder
        failRename(
            id, { "RenameFailure", QT_TRANSLATE_NOOP("RenameFailure", "No permission to rename in this folder.") });
        co_return;
    }
    const RenameRequest request = renameRequest(m_files[static_cast<std::size_t>(*row)]);
    const FileRenamer::Outcome outcome = m_with.renamer.renameDirectly(request);
    if (outcome)
        finishRename(id, request.path, *outcome);
    else
        failRename(id, description(outcome.error()));
}

RenameRequest RenamerViewModel::renameRequest(const FileItem &item) const
{
    return { item.path, item.suggestedName, item.identity };
}

void RenamerViewModel::finishRename(
    const QUuid &id, const std::filesystem::path &oldPath, const std::filesystem::path &newPath)
{
    const std::optional<int> row = rowOf(id);
    if (row)
        applyFinderTags(m_files[static_cast<std::size_t>(*row)].suggestedTags, newPath);
    m_with.renameLog.record(oldPath, newPath);
    if (!row)
        return; // the list was cleared while the rename was in hand
    m_files[static_cast<std::size_t>(*row)].previousName = shownPath(oldPath.filename());
    announce(*row, { PreviousNameRole });
    setPath(*row, newPath);
    setStatus(*row, FileItem::Renamed {});
    emit renameFinished(*row);
}

void RenamerViewModel::failRename(const QUuid &id, const Message &message)
{
    const std::optional<int> row = rowOf(id);
    if (!row)
        return;
    setStatus(*row, FileItem::Failed { message });
    emit renameFinished(*row);
}

void RenamerViewModel::takeBack(const std::filesystem::path &renamedPath, const std::filesystem::path &restoredPath)
{
    const auto found = m_rowsByPath.find(std::string_view(renamedPath.native()));
    if (found == m_rowsByPath.end())
        return;
    const int row = *found;
    setPath(row, restoredPath);
    setStatus(row, FileItem::Pending {});
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    item.previousName.reset();
    announce(row, { PreviousNameRole });
    setSuggestion(row, {}, item.suggestedTags);
}

void RenamerViewModel::setPath(int row, const std::filesystem::path &path)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    m_rowsByPath.erase(row);
    item.path = path;
    m_rowsByPath.insert(row);
    announce(row, { PathRole, FileNameRole, ExtensionRole, FolderNameRole, IconNameRole, Qt::DisplayRole });
}

std::optional<int> RenamerViewModel::rowOf(const QUuid &id) const
{
    const auto row = m_rowOfId.constFind(id);
    return row == m_rowOfId.cend() ? std::nullopt : std::optional(*row);
}

void RenamerViewModel::setStatus(int row, const FileItem::Status &status)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    count(item, -1);
    item.status = status;
    count(item, +1);
    announce(row, { StatusRole, StatusLabelRole, MessageRole, HasNameFieldRole, CanRenameRole });
    emit countsChanged();
}

void RenamerViewModel::setSuggestion(int row, const QString &name, const QStringList &tags)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    count(item, -1);
    item.suggestedName = name;
    item.suggestedTags = tags;
    count(item, +1);
    announce(row, { SuggestedNameRole, SuggestedTagsRole, CanRenameRole });
    emit countsChanged();
}

void RenamerViewModel::count(const FileItem &item, int change)
{
    if (std::holds_alternative<FileItem::Pending>(item.status))
        m_pendingCount += change;
    else if (std::holds_alternative<FileItem::Processing>(item.status))
        m_processingCount += change;
    if (isRenamable(item))
        m_renamableCount += change;
    const auto *failed = std::get_if<FileItem::Failed>(&item.status);
    if (failed && failed->message == description(NameSuggestionError { MissingAPIKey {} }))
        m_keyMissingCount += change;
}

void RenamerViewModel::setDropFeedback(std::optional<DropFeedback> feedback)
{
    if (m_dropFeedback == feedback)
        return;
    m_dropFeedback = feedback;
    emit dropFeedbackChanged();
}

void RenamerViewModel::retranslate()
{
    if (m_announcedRows > 0)
        emit dataChanged(index(0), index(m_announcedRows - 1), { StatusLabelRole, MessageRole });
}

void RenamerViewModel::announce(int row, const QList<int> &roles) { emit dataChanged(index(row), index(row), roles); }

void RenamerViewModel::addUrls(const QList<QUrl> &urls)
{
    std::vector<std::filesystem::path> paths;
    for (const QUrl &url : urls) {
        if (auto path = localPath(url))
            paths.push_back(std::move(*path));
    }
    addFiles(std::move(paths), true);
}

void RenamerViewModel::suggest() { suggestAll(); }

void RenamerViewModel::renameRow(int row) { rename(m_files[static_cast<std::size_t>(row)].id); }

void RenamerViewModel::renameEverything() { renameAll(); }

int RenamerViewModel::nextRowWithName(int row, bool backwards) const
{
    const int step = backwards ? -1 : 1;
    for (int next = row + step; next >= 0 && next < rowCount(); next += step) {
        if (hasNameField(m_files[static_cast<std::size_t>(next)]))
            return next;
    }
    return -1;
}

int RenamerViewModel::rowBeginningWith(const QString &text, int row) const
{
    const int from = std::max(row, 0);
    for (int passed = 0; passed < rowCount(); ++passed) {
        const int candidate = (from + passed) % rowCount();
        const std::filesystem::path name = m_files[static_cast<std::size_t>(candidate)].path.filename();
        if (shownPath(name).startsWith(text, Qt::CaseInsensitive))
            return candidate;
    }
    return -1;
}

void RenamerViewModel::setLanguageId(const QString &id)
{
    if (const auto option = Varlo::filenameLanguageOption(id))
        setFilenameLanguageOption(*option);
}

void RenamerViewModel::setTemplateId(const QString &id)
{
    setSelectedTemplateID(id.isEmpty() ? std::nullopt : std::optional(id));
}

} // namespace Varlo
