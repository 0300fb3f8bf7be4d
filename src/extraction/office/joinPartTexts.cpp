// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/joinPartTexts.h"

#include "extraction/normalizeExtractedText.h"
#include "extraction/office/collectXMLText.h"
#include "platform/Characters.h"

namespace Varlo {

// So many UTF-16 units hold too many bytes of UTF-8 even after white space was collapsed, in which a character takes
// at most two units (CR and LF).
constexpr qsizetype enoughUnits = mostTextBytes + 2 * mostTextCharacters;

QString joinPartTexts(QString text, const QStringList &partNames, OfficePackage &package)
{
    qsizetype count = countCharacters(text, mostTextCharacters);
    for (const QString &name : partNames) {
        const std::optional<QByteArray> part = package.read(name);
        if (!part)
            continue;
        const QString added = u' ' + collectXMLText(*part);
        text += added;
        count += countCharacters(added, mostTextCharacters - count);
        if (count >= mostTextCharacters || text.size() >= enoughUnits)
            break;
    }
    return text;
}

} // namespace Varlo
