// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/normalizeExtractedText.h"
#include "extraction/TextNormalizer.h"

using namespace Varlo;

static Extraction inWhole(const QByteArray &utf8)
{
    return utf8.isValidUtf8() ? normalizeExtractedText(QString::fromUtf8(utf8)) : Extraction(NoTextFound {});
}

static Extraction inChunks(QByteArrayView utf8, qsizetype chunkSize)
{
    TextNormalizer normalizer;
    for (; !utf8.isEmpty(); utf8 = utf8.sliced(std::min(chunkSize, utf8.size()))) {
        if (!normalizer.append(utf8.first(std::min(chunkSize, utf8.size()))))
            return NoTextFound {};
    }
    return normalizer.finish();
}

// The first byte says how large the chunks are and how often the rest is repeated, since the limits lie far beyond what
// a fuzzer writes. However the text arrives, the outcome is that of Qt decoding it at once.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    const QByteArray utf8 = data[0] < 0xF0 ? rest : rest.repeated(1000 * (data[0] - 0xEF));
    const qsizetype chunkSize = data[0] % 16 < 15 ? data[0] % 16 + 1 : 4099;
    if (!(inChunks(utf8, chunkSize) == inWhole(utf8)))
        qFatal("the chunks give another text than the whole");
    return 0;
}
