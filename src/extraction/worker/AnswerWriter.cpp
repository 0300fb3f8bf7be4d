// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/AnswerWriter.h"

#include "extraction/isolation/answerMessages.h"
#include "platform/linux/retryInterrupted.h"
#include "platform/Result.h"
#include <algorithm>
#include <QJsonDocument>
#include <unistd.h>

namespace Varlo {

static AnswerHeader headerFor(AnswerKind kind, qsizetype size = 0)
{
    AnswerHeader header;
    header.kind = kind;
    header.bytes = static_cast<quint32>(size);
    return header;
}

template <typename Message> void AnswerWriter::writeMessage(const Message &message)
{
    writeBytes({ reinterpret_cast<const char *>(&message), sizeof message });
}

void AnswerWriter::writeBytes(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const QByteArrayView chunk = bytes.first(std::min(bytes.size(), mostChunkBytes));
        retryInterrupted([&] { return ::write(m_socket.get(), chunk.data(), static_cast<std::size_t>(chunk.size())); });
        bytes = bytes.sliced(chunk.size());
    }
}

void AnswerWriter::writeStarted(const SandboxLayers &layers)
{
    AnswerStarted started;
    started.landlockVersion = static_cast<quint8>(layers.landlockVersion);
    started.filtersCalls = layers.filtersCalls ? 1 : 0;
    writeMessage(started);
}

void AnswerWriter::writeProgress()
{
    constexpr qint64 intervalMs = 100;
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < intervalMs)
        return;
    m_sinceProgress.start();
    writeMessage(AnswerProgress {});
}

void AnswerWriter::write(const WorkerAnswer &answer)
{
    std::visit(Overloaded {
                   [this](const FileContent &content) { writeContent(content); },
                   [this](const PicturePreview &picture) {
                       PixelsHeader size;
                       size.width = static_cast<quint16>(picture.size.width());
                       size.height = static_cast<quint16>(picture.size.height());
                       writeMessage(headerFor(AnswerKind::Pixels, qsizetype { sizeof size } + picture.pixels.size()));
                       writeMessage(size);
                       writeBytes(picture.pixels);
                   },
                   [this](NoTextFound) { writeMessage(headerFor(AnswerKind::NoText)); },
                   [this](RecognitionNeeded) { writeMessage(headerFor(AnswerKind::RecognitionNeeded)); },
                   [this](FurtherDecoderNeeded) { writeMessage(headerFor(AnswerKind::FurtherDecoderNeeded)); },
                   [this](ReaderNotInstalled) { writeMessage(headerFor(AnswerKind::NotInstalled)); },
                   [this](const ReadersFound &found) {
                       const QByteArray json = QJsonDocument(found.findings).toJson(QJsonDocument::Compact);
                       writeMessage(headerFor(AnswerKind::ReadersFound, json.size()));
                       writeBytes(json);
                   },
               },
        answer);
}

void AnswerWriter::writeContent(const FileContent &content)
{
    std::visit(Overloaded {
                   [this](const TextContent &text) {
                       const QByteArray utf8 = text.text.toUtf8();
                       writeMessage(headerFor(AnswerKind::Text, utf8.size()));
                       writeBytes(utf8);
                   },
                   [this](const ImageContent &image) {
                       const QByteArray metadata = image.metadata.value_or(QString()).toUtf8();
                       AnswerHeader header = headerFor(AnswerKind::Picture, image.data.size());
                       header.hasMetadata = image.metadata ? 1 : 0;
                       header.metadataBytes = static_cast<quint32>(metadata.size());
                       writeMessage(header);
                       writeBytes(metadata);
                       writeBytes(image.data);
                   },
               },
        content);
}

} // namespace Varlo
