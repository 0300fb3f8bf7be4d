// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/readPresentation.h"

#include "extraction/normalizeExtractedText.h"
#include "extraction/office/joinPartTexts.h"
#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace Varlo {

constexpr QStringView slidePrefix = u"ppt/slides/slide";

/// 0 for a name without a number, and for one in other digits than 0 to 9 or too large for 64 bits.
static qint64 slideNumber(QStringView name)
{
    const QStringView rest = name.sliced(slidePrefix.size());
    qsizetype size = 0;
    for (qsizetype at = 0; at < rest.size();) {
        UChar32 codePoint = 0;
        U16_NEXT(rest.utf16(), at, rest.size(), codePoint);
        const bool isNumeric = u_getIntPropertyValue(codePoint, UCHAR_NUMERIC_TYPE) != U_NT_NONE;
        if (!isNumeric)
            break;
        size = at;
    }
    return rest.first(size).toLongLong();
}

Extraction readPresentation(const FileDescriptor &file)
{
    OfficePackage package(file);
    QStringList slides = package.partNames(slidePrefix, u".xml");
    std::stable_sort(slides.begin(), slides.end(),
        [](const QString &left, const QString &right) { return slideNumber(left) < slideNumber(right); });
    return normalizeExtractedText(joinPartTexts(QString(), slides, package));
}

} // namespace Varlo
