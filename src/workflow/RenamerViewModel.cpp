// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/RenamerViewModel.h"

#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include <algorithm>
#include <QCoroFuture>
#include <QCoroSignal>
#include <QElapsedTimer>
#include <QPointer>
#include <QtConcurrentRun>

namespace Varlo {

using namespace std::chrono_literals;

RenamerViewModel::RenamerViewModel(const Collaborators &collaborators, QObject *parent)
    : QAbstractListModel(parent)
    , m_with(collaborators)
{
}

int RenamerViewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_files.size());
}

QVariant RenamerViewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FileItem &item = m_files[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return item.id;
    case PathRole:
        return shownPath(item.path);
    case Qt::DisplayRole:
    case FileNameRole:
        return shownPath(item.path.filename());
    case StatusRole:
        return rawValue(item.status);
    case MessageRole: {
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        return failed ? failed->message : QString();
    }
    case SuggestedNameRole:
        return item.suggestedName;
    case SuggestedTagsRole:
        return item.suggestedTags;
    case PreviousNameRole:
        return item.previousName.value_or(QString());
    case ByteSizeRole:
        return item.byteSize;
    case IconNameRole:
        return iconName(item);
    default:
        return {};
    }
}

QHash<int, QByteArray> RenamerViewModel::roleNames() const
{
    return { { IdRole, "itemId" }, { PathRole, "path" }, { FileNameRole, "fileName" }, { StatusRole, "status" },
        { MessageRole, "message" }, { SuggestedNameRole, "suggestedName" }, { SuggestedTagsRole, "suggestedTags" },
        { PreviousNameRole, "previousName" }, { ByteSizeRole, "byteSize" }, { IconNameRole, "iconName" } };
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

QCoro::Task<void> RenamerViewModel::addFiles(std::vector<std::filesystem::path> paths, bool reportEmpty)
{
    const QPointer<RenamerViewModel> self = this;
    const quint64 clearCount = m_clearCount;
    const quint64 turn = m_nextAdmissionTurn++;
    co_await waitForAdmissionTurn(turn);
    if (!self)
        co_return;

    std::ranges::transform(paths, paths.begin(), standardizedPath);
    const auto walk = std::make_shared<FolderWalk>(std::move(paths));
    qsizetype admitted = 0;
    while (m_clearCount == clearCount) {
        // The disk may be slow or asleep, so it is never waited for on this thread.
        QFuture<std::vector<FolderWalk::File>> slice = QtConcurrent::run([walk] { return walk->next(20ms); });
        std::vector<FolderWalk::File> found = co_await slice;
        if (!self)
            co_return;
        if (found.empty() || m_clearCount != clearCount)
            break;
        admitted += admit(std::move(found));
    }
    if (m_clearCount == clearCount) {
        if (admitted > 0)
            setDropFeedback({});
        else if (reportEmpty)
            setDropFeedback(DropFeedback::NothingRenameable);
    }
    ++m_currentAdmissionTurn;
    emit admissionTurnChanged({});
}

QCoro::Task<void> RenamerViewModel::waitForAdmissionTurn(quint64 turn)
{
    const QPointer<RenamerViewModel> self = this;
    while (self && m_currentAdmissionTurn != turn)
        co_await qCoro(this, &RenamerViewModel::admissionTurnChanged);
}

qsizetype RenamerViewModel::admit(std::vector<FolderWalk::File> found)
{
    std::vector<FileItem> items;
    items.reserve(found.size());
    for (FolderWalk::File &file : found) {
        if (!m_paths.insert(file.path.native()).second)
            continue;
        FileItem item;
        item.id = QUuid::createUuid();
        if (m_with.renameLog.hasStandingRename(file.path))
            item.status = FileItem::AlreadyRenamed {};
        item.byteSize = file.byteSize;
        item.identity = file.identity;
        item.path = std::move(file.path);
        items.push_back(std::move(item));
    }
    if (items.empty())
        return 0;

    const int firstRow = rowCount();
    beginInsertRows({}, firstRow, firstRow + static_cast<int>(items.size()) - 1);
    for (FileItem &item : items) {
        m_rowOfId.insert(item.id, rowCount());
        m_totalBytes += item.byteSize;
        countStatus(item.status, +1);
        m_files.push_back(std::move(item));
    }
    endInsertRows();
    emit countsChanged();
    return static_cast<qsizetype>(items.size());
}

void RenamerViewModel::clear()
{
    ++m_clearCount;
    beginResetModel();
    m_files.clear();
    m_rowOfId.clear();
    m_paths.clear();
    m_pendingCount = 0;
    m_processingCount = 0;
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
        result.status = FileItem::Failed { description(suggestion.error()) };
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

std::optional<int> RenamerViewModel::rowOf(const QUuid &id) const
{
    const auto row = m_rowOfId.constFind(id);
    return row == m_rowOfId.cend() ? std::nullopt : std::optional(*row);
}

void RenamerViewModel::setStatus(int row, const FileItem::Status &status)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    countStatus(item.status, -1);
    item.status = status;
    countStatus(item.status, +1);
    announce(row, { StatusRole, MessageRole });
    emit countsChanged();
}

void RenamerViewModel::setSuggestion(int row, const QString &name, const QStringList &tags)
{
    FileItem &item = m_files[static_cast<std::size_t>(row)];
    item.suggestedName = name;
    announce(row, { SuggestedNameRole });
    item.suggestedTags = tags;
    announce(row, { SuggestedTagsRole });
}

void RenamerViewModel::countStatus(const FileItem::Status &status, int change)
{
    if (std::holds_alternative<FileItem::Pending>(status))
        m_pendingCount += change;
    else if (std::holds_alternative<FileItem::Processing>(status))
        m_processingCount += change;
}

void RenamerViewModel::setDropFeedback(std::optional<DropFeedback> feedback)
{
    if (m_dropFeedback == feedback)
        return;
    m_dropFeedback = feedback;
    emit dropFeedbackChanged();
}

void RenamerViewModel::announce(int row, const QList<int> &roles) { emit dataChanged(index(row), index(row), roles); }

} // namespace Varlo
