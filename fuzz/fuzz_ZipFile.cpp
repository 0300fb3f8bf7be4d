// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/ZipFile.h"

using namespace Varlo;

// However little is asked for, it is the beginning of what there is.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArrayView archive(data, static_cast<qsizetype>(size));
    for (const ZipFile::Entry &entry : ZipFile::entries(archive)) {
        constexpr qint64 most = 100'000;
        const std::optional<QByteArray> content = ZipFile::read(entry, archive, most);
        if (!content)
            continue;
        if (content->size() > most)
            qFatal("more than was asked for");
        for (const qint64 limit : { 0, 1, 300 }) {
            if (ZipFile::read(entry, archive, limit) != content->first(std::min(content->size(), limit)))
                qFatal("the beginning is another one than that of the whole");
        }
    }
    return 0;
}
