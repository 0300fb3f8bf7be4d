// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/JournalRecord.h"

#include "platform/Result.h"
#include <algorithm>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>
#include <unordered_map>
#include <unordered_set>
#include <zlib.h>

namespace Varlo {

static const QByteArray signature = QByteArrayLiteral("VARLORJ1");
static const QByteArray marker = QByteArrayLiteral("\x1EVRJ");
static constexpr qsizetype frameHeadSize = 12;
// A folder's path of at most 4096 bytes and two names of 255, with room to spare.
static constexpr quint32 longestRecord = 64 * 1024;

static QDataStream &operator<<(QDataStream &stream, const std::string &bytes)
{
    return stream << QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

static QDataStream &operator>>(QDataStream &stream, std::string &bytes)
{
    QByteArray read;
    stream >> read;
    bytes = read.toStdString();
    return stream;
}

static QDataStream &operator<<(QDataStream &stream, const RenameIntent &intent)
{
    return stream << intent.id << intent.folder << intent.from << intent.to << intent.device << intent.inode
                  << intent.birthTimeNs << intent.date << intent.undoneDate.has_value() << intent.undoneDate.value_or(0)
                  << intent.isTold;
}

static QDataStream &operator>>(QDataStream &stream, RenameIntent &intent)
{
    bool isUndo = false;
    double undoneDate = 0;
    stream >> intent.id >> intent.folder >> intent.from >> intent.to >> intent.device >> intent.inode
        >> intent.birthTimeNs >> intent.date >> isUndo >> undoneDate >> intent.isTold;
    if (isUndo)
        intent.undoneDate = undoneDate;
    return stream;
}

static QDataStream &operator<<(QDataStream &stream, const RenameReported &rename)
{
    return stream << rename.fromPath << rename.toPath << rename.date;
}

static QDataStream &operator>>(QDataStream &stream, RenameReported &rename)
{
    return stream >> rename.fromPath >> rename.toPath >> rename.date;
}

static QDataStream &operator<<(QDataStream &stream, const UndoReported &undo)
{
    return stream << undo.toPath << undo.date << undo.undoneAt;
}

static QDataStream &operator>>(QDataStream &stream, UndoReported &undo)
{
    return stream >> undo.toPath >> undo.date >> undo.undoneAt;
}

static QDataStream &operator<<(QDataStream &stream, HistoryCleared) { return stream; }
static QDataStream &operator>>(QDataStream &stream, HistoryCleared &) { return stream; }

template <typename Mark>
concept IntentMark = requires(Mark mark)
{
    mark.id;
}
&&!std::same_as<Mark, RenameIntent>;
template <IntentMark Mark> QDataStream &operator<<(QDataStream &stream, const Mark &mark) { return stream << mark.id; }
template <IntentMark Mark> QDataStream &operator>>(QDataStream &stream, Mark &mark) { return stream >> mark.id; }

QByteArray journalHead(quint64 epoch)
{
    QByteArray head = signature;
    head.resize(journalHeadSize);
    qToLittleEndian(epoch, head.data() + signature.size());
    return head;
}

static quint32 checksum(QByteArrayView bytes)
{
    return static_cast<quint32>(
        ::crc32(0, reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uInt>(bytes.size())));
}

QByteArray encodeRecords(std::span<const JournalRecord> records)
{
    QByteArray frames;
    constexpr qsizetype usualFrame = 256;
    frames.reserve(static_cast<qsizetype>(records.size()) * usualFrame);
    QDataStream stream(&frames, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    const QByteArray emptyHead = marker + QByteArray(frameHeadSize - marker.size(), '\0');
    for (const JournalRecord &record : records) {
        const qsizetype start = frames.size();
        stream.writeRawData(emptyHead.constData(), static_cast<int>(emptyHead.size()));
        stream << static_cast<quint8>(record.index());
        std::visit([&](const auto &content) { stream << content; }, record);
        const QByteArrayView payload = QByteArrayView(frames).sliced(start + frameHeadSize);
        char *head = frames.data() + start + marker.size();
        qToLittleEndian(static_cast<quint32>(payload.size()), head);
        qToLittleEndian(checksum(payload), head + 4);
    }
    return frames;
}

template <std::size_t index = 0> std::optional<JournalRecord> readRecord(QDataStream &stream, std::size_t kind)
{
    if constexpr (index == std::variant_size_v<JournalRecord>) {
        return std::nullopt;
    } else {
        if (kind != index)
            return readRecord<index + 1>(stream, kind);
        std::variant_alternative_t<index, JournalRecord> content;
        stream >> content;
        if (stream.status() != QDataStream::Ok || !stream.atEnd())
            return std::nullopt;
        return content;
    }
}

/// The record whose frame begins at `at`, and where the next one does.
static std::optional<std::pair<JournalRecord, qsizetype>> decodeRecord(const QByteArray &content, qsizetype at)
{
    if (content.size() - at < frameHeadSize || !QByteArrayView(content).sliced(at).startsWith(marker))
        return std::nullopt;
    const auto length = qFromLittleEndian<quint32>(content.constData() + at + marker.size());
    const auto expected = qFromLittleEndian<quint32>(content.constData() + at + marker.size() + 4);
    const qsizetype start = at + frameHeadSize;
    if (length == 0 || length > longestRecord || length > content.size() - start)
        return std::nullopt;
    const QByteArray payload = QByteArray::fromRawData(content.constData() + start, length);
    if (checksum(payload) != expected)
        return std::nullopt;
    QDataStream stream(payload);
    stream.setVersion(QDataStream::Qt_6_0);
    quint8 kind = 0;
    stream >> kind;
    auto record = readRecord(stream, kind);
    if (!record)
        return std::nullopt;
    return std::pair { std::move(*record), start + length };
}

DecodedJournal decodeJournal(const QByteArray &content)
{
    DecodedJournal journal;
    qsizetype at = 0;
    if (content.size() >= journalHeadSize && content.startsWith(signature)) {
        journal.epoch = qFromLittleEndian<quint64>(content.constData() + signature.size());
        journal.wholeSize = journalHeadSize;
        at = journalHeadSize;
    } else {
        journal.isDamaged = !signature.startsWith(content.first(std::min(content.size(), signature.size())));
    }
    // Whatever does not decode is passed over up to the next marker, so that one bad byte costs one record.
    for (at = content.indexOf(marker, at); at >= 0; at = content.indexOf(marker, at)) {
        auto decoded = decodeRecord(content, at);
        if (!decoded) {
            ++at;
            continue;
        }
        journal.isDamaged = journal.isDamaged || at != journal.wholeSize;
        journal.records.push_back(std::move(decoded->first));
        at = decoded->second;
        journal.wholeSize = at;
    }
    return journal;
}

static HistoryChange changeBy(const RenameIntent &intent)
{
    if (intent.undoneDate)
        return RenameTakenBack { pathIn(intent.folder, intent.from), *intent.undoneDate, intent.date };
    return RenameAdded { pathIn(intent.folder, intent.from), pathIn(intent.folder, intent.to), intent.date };
}

static bool isAddition(const JournalRecord &record, const std::unordered_set<quint64> &done)
{
    const auto *intent = std::get_if<RenameIntent>(&record);
    return (intent && !intent->undoneDate && done.contains(intent->id))
        || std::holds_alternative<RenameReported>(record);
}

std::vector<HistoryChange> historyChanges(const std::vector<JournalRecord> &records, std::size_t maximumAdditions)
{
    std::unordered_set<quint64> done;
    for (const JournalRecord &record : records) {
        if (const auto *mark = std::get_if<RenameDone>(&record))
            done.insert(mark->id);
    }
    const auto additions = static_cast<std::size_t>(std::count_if(
        records.begin(), records.end(), [&](const JournalRecord &record) { return isAddition(record, done); }));
    std::size_t passedOver = additions - std::min(additions, maximumAdditions);
    std::vector<HistoryChange> changes;
    for (const JournalRecord &record : records) {
        if (passedOver > 0 && isAddition(record, done))
            --passedOver;
        else if (const auto *intent = std::get_if<RenameIntent>(&record); intent && done.contains(intent->id))
            changes.push_back(changeBy(*intent));
        else if (const auto *report = std::get_if<RenameReported>(&record))
            changes.push_back(RenameAdded { report->fromPath, report->toPath, report->date });
        else if (const auto *undo = std::get_if<UndoReported>(&record))
            changes.push_back(RenameTakenBack { undo->toPath, undo->date, undo->undoneAt });
        else if (std::holds_alternative<HistoryCleared>(record))
            changes.push_back(HistoryCleared {});
    }
    return changes;
}

std::vector<RenameIntent> intentsWithoutOutcome(const std::vector<JournalRecord> &records)
{
    std::unordered_set<quint64> ended;
    for (const JournalRecord &record : records) {
        if (const auto *done = std::get_if<RenameDone>(&record))
            ended.insert(done->id);
        else if (const auto *dropped = std::get_if<RenameDropped>(&record))
            ended.insert(dropped->id);
    }
    std::vector<RenameIntent> intents;
    for (const JournalRecord &record : records) {
        if (const auto *intent = std::get_if<RenameIntent>(&record); intent && !ended.contains(intent->id))
            intents.push_back(*intent);
    }
    return intents;
}

} // namespace Varlo
