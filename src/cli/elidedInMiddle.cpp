// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/elidedInMiddle.h"

#include "platform/Characters.h"

namespace Varlo {

/// As much of the front as fits into the columns.
static QString front(QStringView text, int columns)
{
    qsizetype characters = 0;
    qsizetype end = 0;
    while (end < text.size()) {
        const qsizetype next = firstCharacters(text, characters + 1).size();
        if (terminalWidth(text.first(next)) > columns)
            break;
        end = next;
        ++characters;
    }
    return text.first(end).toString();
}

/// As much of the end as fits into the columns.
static QString back(QStringView text, int columns)
{
    qsizetype characters = 0;
    qsizetype start = 0;
    while (start < text.size() && terminalWidth(text.sliced(start)) > columns)
        start = firstCharacters(text, ++characters).size();
    return text.sliced(start).toString();
}

QString elidedInMiddle(const QString &text, int columns)
{
    if (terminalWidth(text) <= columns)
        return text;
    if (columns < 1)
        return {};
    const int atEnd = (columns - 1) / 2;
    return front(text, columns - 1 - atEnd) + u'…' + back(text, atEnd);
}

} // namespace Varlo
