// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/readWordDocument.h"

#include "extraction/normalizeExtractedText.h"
#include "extraction/office/collectXMLText.h"
#include "extraction/office/importWordDocument.h"

using namespace Qt::StringLiterals;

namespace Varlo {

Extraction readWordDocument(const FileDescriptor &file)
{
    OfficePackage package(file);
    if (const std::optional<QByteArray> part = package.read(u"word/document.xml"_s)) {
        Extraction extraction = normalizeExtractedText(collectXMLText(*part));
        if (std::holds_alternative<FileContent>(extraction))
            return extraction;
    }
    const std::optional<QString> imported = importWordDocument(package);
    if (!imported)
        return NoTextFound {};
    return normalizeExtractedText(*imported);
}

} // namespace Varlo
