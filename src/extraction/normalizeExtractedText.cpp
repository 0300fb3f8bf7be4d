// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/normalizeExtractedText.h"

#include "platform/Characters.h"

namespace Varlo {

Extraction normalizeExtractedText(const QString &text)
{
    // Trimmed before it is cut: a space in the last place stays, as it separates nothing but is no end of the text.
    const QString line = text.simplified();
    const QStringView kept = firstCharacters(line, mostTextCharacters, mostTextBytes);
    if (countCharacters(kept, fewestTextCharacters) < fewestTextCharacters)
        return NoTextFound {};
    return FileContent { TextContent { kept.toString() } };
}

} // namespace Varlo
