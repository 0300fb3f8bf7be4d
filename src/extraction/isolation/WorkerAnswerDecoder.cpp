// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/WorkerAnswerDecoder.h"

#include "extraction/jpegSize.h"
#include "extraction/normalizeExtractedText.h"
#include "platform/Characters.h"
#include <algorithm>
#include <cstring>
#include <QJsonDocument>

namespace Varlo {

using namespace Qt::StringLiterals;

// A worker reports ten times a second at most, for ten minutes at most.
static constexpr int mostProgressMessages = 10'000;
static constexpr int longestSideOfContent = 1568;

template <typename Message> static std::optional<Message> decode(QByteArrayView bytes)
{
    Message message;
    if (bytes.size() != sizeof message)
        return {};
    std::memcpy(&message, bytes.data(), sizeof message);
    return message;
}

static std::optional<QString> decodeUtf8(QByteArrayView bytes)
{
    if (!bytes.isValidUtf8())
        return {};
    return QString::fromUtf8(bytes);
}

/// What normalizeExtractedText() gives: one line; its last character may be the space in front of what was cut off.
static bool isNormalized(const QString &text)
{
    const QString simplified = text.simplified();
    if (text != simplified && text != simplified + u' ')
        return false;
    const qsizetype characters = countCharacters(text, mostTextCharacters + 1);
    return characters >= fewestTextCharacters && characters <= mostTextCharacters;
}

static qsizetype bytesOfPixels(int width, int height) { return qsizetype { width } * height * 3; }

static qsizetype mostBytes(AnswerKind kind, const WorkerJob &job)
{
    switch (kind) {
    case AnswerKind::Text:
        return mostTextBytes;
    case AnswerKind::Picture:
        return mostPictureBytes;
    case AnswerKind::ReadersFound:
        return mostFindingsBytes;
    case AnswerKind::Pixels:
        return qsizetype { sizeof(PixelsHeader) } + bytesOfPixels(job.longestSide, job.longestSide);
    case AnswerKind::NoText:
    case AnswerKind::RecognitionNeeded:
    case AnswerKind::FurtherDecoderNeeded:
    case AnswerKind::NotInstalled:
        break;
    }
    return 0;
}

/// Whether a reader may answer so to such a job.
static bool isAllowed(AnswerKind kind, const WorkerJob &job)
{
    const bool inspects = job.kind == WorkerJob::Kind::Inspect;
    switch (kind) {
    case AnswerKind::NoText:
    case AnswerKind::NotInstalled:
        return !inspects;
    case AnswerKind::Pixels:
        return job.kind == WorkerJob::Kind::Preview;
    case AnswerKind::Text:
    case AnswerKind::Picture:
        return job.kind == WorkerJob::Kind::Extract;
    case AnswerKind::RecognitionNeeded:
        return job.kind == WorkerJob::Kind::Extract && !job.recognizesText;
    case AnswerKind::FurtherDecoderNeeded:
        return !inspects && !job.usesFurtherDecoder;
    case AnswerKind::ReadersFound:
        return inspects;
    }
    return false; // a number that is none of them
}

WorkerAnswerDecoder::WorkerAnswerDecoder(WorkerJob job)
    : m_job(std::move(job))
{
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::take(QByteArrayView message)
{
    if (m_state != State::Going || message.isEmpty())
        return m_state = State::Nonsense;
    if (m_header)
        return m_state = takeChunk(message);
    switch (static_cast<AnswerType>(message.front())) {
    case AnswerType::Started:
        return m_state = takeStarted(message);
    case AnswerType::Progress:
        return m_state = takeProgress(message);
    case AnswerType::Result:
        return m_state = takeHeader(message);
    }
    return m_state = State::Nonsense;
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::takeStarted(QByteArrayView message)
{
    const auto started = decode<AnswerStarted>(message);
    if (!started || m_layers)
        return State::Nonsense;
    m_layers = SandboxLayers { started->landlockVersion, started->filtersCalls != 0 };
    return State::Going;
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::takeProgress(QByteArrayView message)
{
    const bool isFine = decode<AnswerProgress>(message) && ++m_progressMessages <= mostProgressMessages;
    return isFine ? State::Going : State::Nonsense;
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::takeHeader(QByteArrayView message)
{
    const auto header = decode<AnswerHeader>(message);
    if (!header || !isAllowed(header->kind, m_job) || header->bytes > mostBytes(header->kind, m_job)
        || header->metadataBytes > mostMetadataBytes)
        return State::Nonsense;
    if ((header->hasMetadata != 0 && header->kind != AnswerKind::Picture)
        || (header->hasMetadata == 0 && header->metadataBytes != 0))
        return State::Nonsense;
    m_header = header;
    m_bytes.reserve(missingBytes());
    return missingBytes() == 0 ? finish() : State::Going;
}

qsizetype WorkerAnswerDecoder::missingBytes() const
{
    return qsizetype { m_header->metadataBytes } + m_header->bytes - m_bytes.size();
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::takeChunk(QByteArrayView bytes)
{
    if (bytes.size() > missingBytes())
        return State::Nonsense;
    m_bytes.append(bytes.data(), bytes.size());
    return missingBytes() == 0 ? finish() : State::Going;
}

WorkerAnswerDecoder::State WorkerAnswerDecoder::finish()
{
    std::optional<WorkerAnswer> answer = checkedAnswer();
    if (!answer)
        return State::Nonsense;
    m_answer = std::move(*answer);
    m_bytes.clear();
    return State::Complete;
}

static std::optional<WorkerAnswer> textAnswer(QByteArrayView bytes)
{
    const std::optional<QString> text = decodeUtf8(bytes);
    if (!text || !isNormalized(*text))
        return {};
    return FileContent { TextContent { *text } };
}

static std::optional<WorkerAnswer> pictureAnswer(QByteArrayView bytes, std::optional<QByteArrayView> metadata)
{
    const std::optional<QSize> size = jpegSize(bytes);
    if (!size || size->width() > longestSideOfContent || size->height() > longestSideOfContent)
        return {};
    ImageContent image { bytes.toByteArray(), u"image/jpeg"_s, {} };
    if (metadata) {
        image.metadata = decodeUtf8(*metadata);
        if (!image.metadata)
            return {};
    }
    return FileContent { image };
}

static std::optional<WorkerAnswer> pixelsAnswer(QByteArrayView bytes, int side)
{
    const auto header = decode<PixelsHeader>(bytes.first(std::min(bytes.size(), qsizetype { sizeof(PixelsHeader) })));
    if (!header || header->width < 1 || header->height < 1 || header->width > side || header->height > side)
        return {};
    const QByteArrayView pixels = bytes.sliced(sizeof(PixelsHeader));
    if (pixels.size() != bytesOfPixels(header->width, header->height))
        return {};
    return PicturePreview { { header->width, header->height }, pixels.toByteArray() };
}

std::optional<WorkerAnswer> WorkerAnswerDecoder::checkedAnswer() const
{
    const QByteArrayView metadata = QByteArrayView(m_bytes).first(m_header->metadataBytes);
    const QByteArrayView bytes = QByteArrayView(m_bytes).sliced(m_header->metadataBytes);
    switch (m_header->kind) {
    case AnswerKind::NoText:
        return NoTextFound {};
    case AnswerKind::RecognitionNeeded:
        return RecognitionNeeded {};
    case AnswerKind::FurtherDecoderNeeded:
        return FurtherDecoderNeeded {};
    case AnswerKind::NotInstalled:
        return ReaderNotInstalled {};
    case AnswerKind::Text:
        return textAnswer(bytes);
    case AnswerKind::Picture:
        return pictureAnswer(bytes, m_header->hasMetadata != 0 ? std::optional(metadata) : std::nullopt);
    case AnswerKind::Pixels:
        return pixelsAnswer(bytes, m_job.longestSide);
    case AnswerKind::ReadersFound: {
        const QJsonDocument document = QJsonDocument::fromJson(bytes.toByteArray());
        if (!document.isObject())
            return {};
        return ReadersFound { document.object() };
    }
    }
    return {};
}

} // namespace Varlo
