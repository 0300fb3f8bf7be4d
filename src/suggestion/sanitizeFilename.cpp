// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/sanitizeFilename.h"

#include "platform/Characters.h"

namespace Varlo {

static bool isQuotationMark(QChar character) { return character == u'"' || character == u'\'' || character == u'`'; }

static bool isIllegal(QChar character) { return character < u' ' || QStringView(u"<>:\"/\\|?*").contains(character); }

QString sanitizeFilename(const QString &name)
{
    QStringView core = QStringView(name).trimmed();
    while (!core.isEmpty() && isQuotationMark(core.front()))
        core = core.sliced(1);
    while (!core.isEmpty() && isQuotationMark(core.back()))
        core.chop(1);

    QString clean;
    clean.reserve(core.size());
    for (const QChar character : core) {
        if (!isIllegal(character))
            clean.append(character);
    }
    // simplified() makes one space of every run of white space and trims both ends.
    return firstCharacters(clean.simplified(), 120).toString();
}

} // namespace Varlo
