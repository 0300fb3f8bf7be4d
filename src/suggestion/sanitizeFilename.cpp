// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/sanitizeFilename.h"

#include "platform/Characters.h"

namespace Varlo {

static bool isQuotationMark(QChar character) { return character == u'"' || character == u'\'' || character == u'`'; }

static bool isIllegal(QChar character)
{
    switch (character.unicode()) {
    case u'<':
    case u'>':
    case u':':
    case u'"':
    case u'/':
    case u'\\':
    case u'|':
    case u'?':
    case u'*':
        return true;
    default:
        return character < u' ';
    }
}

QString sanitizeFilename(const QString &name)
{
    QStringView core = QStringView(name).trimmed();
    while (!core.isEmpty() && isQuotationMark(core.front()))
        core = core.sliced(1);
    while (!core.isEmpty() && isQuotationMark(core.back()))
        core.chop(1);

    QString clean = core.toString();
    clean.removeIf(&isIllegal);
    // simplified() makes one space of every run of white space and trims both ends.
    return firstCharacters(clean.simplified(), 120).toString();
}

} // namespace Varlo
