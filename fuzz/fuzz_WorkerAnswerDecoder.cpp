// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/WorkerAnswerDecoder.h"

#include "extraction/jpegSize.h"
#include "extraction/normalizeExtractedText.h"
#include "platform/Characters.h"
#include "platform/Result.h"
#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Varlo;

// The first byte chooses the job; each message follows its size in two bytes.
static const std::array jobs {
    WorkerJob { WorkerJob::Kind::Extract, "pdf", false, false, 0 },
    WorkerJob { WorkerJob::Kind::Extract, "jpg", true, true, 0 },
    WorkerJob { WorkerJob::Kind::Preview, "pdf", false, false, 400 },
    WorkerJob { WorkerJob::Kind::Inspect, "", false, false, 0 },
};

static void expect(bool isKept)
{
    if (!isKept)
        std::abort();
}

/// What whoever takes the answer relies on.
static void check(const WorkerAnswer &answer)
{
    if (const auto *const picture = std::get_if<PicturePreview>(&answer)) {
        const QSize size = picture->size;
        expect(!size.isEmpty() && size.width() <= 400 && size.height() <= 400);
        expect(picture->pixels.size() == qsizetype { size.width() } * size.height() * 3);
    }
    const auto *const content = std::get_if<FileContent>(&answer);
    if (!content)
        return;
    std::visit(Overloaded {
                   [](const TextContent &text) {
                       const qsizetype characters = countCharacters(text.text, 100'000);
                       expect(characters >= fewestTextCharacters && characters <= mostTextCharacters);
                       expect(!text.text.contains(u'\n') && text.text.toUtf8().size() <= mostTextBytes + 3);
                   },
                   [](const ImageContent &image) {
                       const auto size = jpegSize(image.data);
                       expect(size && size->width() <= 1568 && size->height() <= 1568);
                   },
               },
        *content);
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size == 0)
        return 0;
    WorkerAnswerDecoder decoder(jobs[data[0] % jobs.size()]);
    QByteArrayView rest(data + 1, static_cast<qsizetype>(size - 1));
    while (rest.size() >= 2 && decoder.state() == WorkerAnswerDecoder::State::Going) {
        const qsizetype length = static_cast<quint8>(rest[0]) + 256 * static_cast<quint8>(rest[1]);
        rest = rest.sliced(2);
        const QByteArray message = rest.first(std::min(length, rest.size())).toByteArray(); // ends where it ends
        rest = rest.sliced(message.size());
        (void)decoder.take(message);
    }
    if (decoder.state() == WorkerAnswerDecoder::State::Complete)
        check(decoder.answer());
    return 0;
}
