// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/readSpreadsheet.h"

#include "extraction/normalizeExtractedText.h"
#include "extraction/office/collectXMLText.h"
#include "extraction/office/joinPartTexts.h"
#include "platform/Characters.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace Varlo {

Extraction readSpreadsheet(const FileDescriptor &file)
{
    OfficePackage package(file);
    const std::optional<QByteArray> sharedStrings = package.read(u"xl/sharedStrings.xml"_s);
    const QString sharedText = sharedStrings ? collectXMLText(*sharedStrings) : QString();
    if (countCharacters(sharedText, fewestTextCharacters) >= fewestTextCharacters)
        return normalizeExtractedText(sharedText);
    QStringList sheets = package.partNames(u"xl/worksheets/", u".xml");
    std::sort(sheets.begin(), sheets.end());
    return normalizeExtractedText(joinPartTexts(sharedText, sheets, package));
}

} // namespace Varlo
