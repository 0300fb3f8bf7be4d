// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/decodeUtf8.h"

#include <QStringDecoder>

namespace Varlo {

QString decodeUtf8(QByteArrayView bytes)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

} // namespace Varlo
