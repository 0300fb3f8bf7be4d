// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/photoMetadataBlock.h"

using namespace Varlo;

// A whole file, as Exiv2 gets it. Where it finds nothing in the bytes, they are taken as the fields themselves.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    PhotoFacts facts = readPhotoFacts(bytes);
    if (facts.orientation < 1 || facts.orientation > 8)
        qFatal("an orientation that does not exist");
    if (!facts.captureDate && facts.make.isEmpty() && facts.model.isEmpty()) {
        const qsizetype third = bytes.size() / 3;
        facts.captureDate = QString::fromUtf8(bytes.first(third));
        facts.make = QString::fromUtf8(bytes.sliced(third, third)).trimmed();
        facts.model = QString::fromUtf8(bytes.sliced(2 * third)).trimmed();
    }
    const auto block = photoMetadataBlock(facts, std::nullopt);
    if (!block)
        return 0;
    if (block->count(u'\n') > 2 || block->endsWith(u'\n') || block->contains(u'\r') || block->contains(QChar(0x2028)))
        qFatal("a line that is not ours");
    if (!block->startsWith(QStringLiteral("PHOTO METADATA (")))
        qFatal("no header");
    return 0;
}
