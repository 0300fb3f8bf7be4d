// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/normalizeExtractedText.h"
#include "extraction/readPlainText.h"
#include "extraction/TextNormalizer.h"
#include "platform/Characters.h"
#include "suggestion/sanitizeFilename.h"

#include <benchmark/benchmark.h>
#include <sys/mman.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

static const QByteArray ascii = "The quick brown fox jumps over the lazy dog, 1234567890 times.\n"_ba;
static const QByteArray mixed
    = "Zażółć gęślą jaźń. Съешь же ещё этих булок. Ξεσκεπάζω την ψυχοφθόρα. نص حكيم له سر. 天地玄黄宇宙洪荒 😀👩‍👩‍👧‍👦\n"_ba;

static QByteArray textOf(const QByteArray &line, qsizetype size) { return line.repeated(size / line.size()); }

static void reportBytes(benchmark::State &state, qsizetype size)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * size);
}

static void normalize(benchmark::State &state, const QByteArray &line)
{
    const QString text = QString::fromUtf8(textOf(line, 1 << 20));
    for (auto round : state)
        benchmark::DoNotOptimize(normalizeExtractedText(text));
    reportBytes(state, 1 << 20);
}

static void normalizeInChunks(benchmark::State &state, const QByteArray &line)
{
    const QByteArray text = textOf(line, 64 << 20);
    constexpr qsizetype chunkSize = 128 << 10;
    for (auto round : state) {
        TextNormalizer normalizer;
        for (qsizetype at = 0; at < text.size(); at += chunkSize) {
            if (!normalizer.append(QByteArrayView(text).sliced(at, std::min(chunkSize, text.size() - at))))
                state.SkipWithError("not UTF-8");
        }
        benchmark::DoNotOptimize(normalizer.finish());
    }
    reportBytes(state, text.size());
}

static void readFile(benchmark::State &state, const QByteArray &line, qsizetype size)
{
    const QByteArray text = textOf(line, size);
    const FileDescriptor file(::memfd_create("text", MFD_CLOEXEC));
    if (::write(file.get(), text.constData(), static_cast<size_t>(text.size())) != text.size())
        state.SkipWithError("no memory for the file");
    for (auto round : state)
        benchmark::DoNotOptimize(readPlainText(file));
    reportBytes(state, text.size());
}

static void count(benchmark::State &state, const QByteArray &line)
{
    const QString text = QString::fromUtf8(textOf(line, 1 << 20)).first(100'000);
    for (auto round : state)
        benchmark::DoNotOptimize(countCharacters(text, 8000));
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * 8000);
}

static void sanitize(benchmark::State &state, const QByteArray &line)
{
    const QString name = QString::fromUtf8(line);
    for (auto round : state)
        benchmark::DoNotOptimize(sanitizeFilename(name));
}

BENCHMARK_CAPTURE(normalize, ascii, ascii);
BENCHMARK_CAPTURE(normalize, mixed, mixed);
BENCHMARK_CAPTURE(normalizeInChunks, ascii, ascii);
BENCHMARK_CAPTURE(normalizeInChunks, mixed, mixed);
BENCHMARK_CAPTURE(normalizeInChunks, white_space, " \t\n"_ba);
BENCHMARK_CAPTURE(readFile, ascii_4_KiB, ascii, 4 << 10);
BENCHMARK_CAPTURE(readFile, mixed_4_KiB, mixed, 4 << 10);
BENCHMARK_CAPTURE(readFile, ascii_64_MiB, ascii, 64 << 20);
BENCHMARK_CAPTURE(readFile, mixed_64_MiB, mixed, 64 << 20);
BENCHMARK_CAPTURE(count, ascii, ascii);
BENCHMARK_CAPTURE(count, mixed, mixed);
BENCHMARK_CAPTURE(sanitize, ascii, ascii);
BENCHMARK_CAPTURE(sanitize, mixed, mixed);
