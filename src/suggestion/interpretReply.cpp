// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/interpretReply.h"

#include "platform/Characters.h"
#include "suggestion/sanitizeFilename.h"

namespace Varlo {

using namespace Qt::StringLiterals;

constexpr auto noContentMarker = "NO_CONTENT"_L1;
constexpr auto tagsMarker = "TAGS:"_L1;

QStringList parseTags(QStringView text)
{
    constexpr qsizetype mostTags = 5;
    constexpr qsizetype longestTag = 30;
    QStringList tags;
    for (const QStringView piece : text.tokenize(u',')) {
        const QString tag = piece.trimmed().toString().toLower();
        if (tag.isEmpty() || countCharacters(tag, longestTag + 1) > longestTag || tags.contains(tag))
            continue;
        tags.append(tag);
        if (tags.size() == mostTags)
            break;
    }
    return tags;
}

Result<NameSuggestion, ReplyError> interpretReply(const QString &reply, bool includeTags)
{
    constexpr qsizetype longestName = 90;
    const QStringView trimmed = QStringView(reply).trimmed();
    if (trimmed.contains(noContentMarker))
        return tl::unexpected(ReplyError::NoReadableContent);

    QStringView candidate = trimmed;
    QStringList tags;
    const qsizetype marker = includeTags ? trimmed.indexOf(tagsMarker, 0, Qt::CaseInsensitive) : -1;
    if (marker >= 0) {
        tags = parseTags(trimmed.sliced(marker + tagsMarker.size()));
        candidate = trimmed.first(marker).trimmed();
    }
    if (countCharacters(candidate, longestName + 1) > longestName)
        return tl::unexpected(ReplyError::InvalidResponse);
    const QString name = sanitizeFilename(candidate.toString());
    if (name.isEmpty())
        return tl::unexpected(ReplyError::InvalidResponse);
    return NameSuggestion { name, tags };
}

} // namespace Varlo
