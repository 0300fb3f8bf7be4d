// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/readTextPreview.h"

#include "platform/Characters.h"
#include "platform/linux/retryInterrupted.h"
#include <array>
#include <QStringDecoder>
#include <unistd.h>

namespace Varlo {

Preview readTextPreview(const FileDescriptor &file)
{
    std::array<char, mostPreviewBytes> buffer;
    const ssize_t size = retryInterrupted([&] { return ::pread(file.get(), buffer.data(), buffer.size(), 0); });
    if (size <= 0)
        return NoTextFound {};
    QStringDecoder decoder(QStringDecoder::Utf8); // holds back a sequence that the end of the buffer cuts
    const QString text = decoder(QByteArrayView(buffer.data(), size));
    if (decoder.hasError() || text.trimmed().isEmpty())
        return NoTextFound {};
    return TextPreview { firstCharacters(text, mostPreviewCharacters).toString() };
}

} // namespace Varlo
