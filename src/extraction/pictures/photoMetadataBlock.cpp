// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/photoMetadataBlock.h"

#include "platform/Characters.h"
#include <algorithm>
#include <fcntl.h>
#include <QDateTime>
#include <QStringList>
#include <sys/stat.h>

namespace Varlo {

using namespace Qt::StringLiterals;

// The longest names of cameras have about 40.
static constexpr qsizetype cameraLimit = 200;

/// The lines of the block are ours: a field of the file begins no new one.
static QString onOneLine(QString text)
{
    const auto breaksLine = [](QChar c) {
        return (c >= u'\n' && c <= u'\r') || c == QChar(0x85) || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator;
    };
    std::replace_if(text.begin(), text.end(), breaksLine, QChar(u' '));
    return text;
}

std::optional<QString> exifDateString(const QString &date)
{
    const QStringList pieces = firstCharacters(date, 10).toString().split(u':', Qt::SkipEmptyParts);
    const auto hasLength
        = [&](qsizetype piece, qsizetype count) { return countCharacters(pieces[piece], count + 1) == count; };
    if (pieces.size() != 3 || !hasLength(0, 4) || !hasLength(1, 2) || !hasLength(2, 2))
        return std::nullopt;
    return pieces.join(u'-');
}

std::optional<QString> cameraDescription(const QString &make, const QString &model)
{
    const QString camera
        = make.isEmpty() || model.contains(make, Qt::CaseInsensitive) ? model : (make + u' ' + model).trimmed();
    if (camera.isEmpty() || countCharacters(camera, cameraLimit + 1) > cameraLimit)
        return std::nullopt;
    return camera;
}

std::optional<QString> fileCreationDateString(const FileDescriptor &file)
{
    struct statx status { };
    if (::statx(file.get(), "", AT_EMPTY_PATH, STATX_BTIME | STATX_MTIME, &status) != 0)
        return std::nullopt;
    const auto &time = (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime : status.stx_mtime;
    return QDateTime::fromSecsSinceEpoch(time.tv_sec).date().toString(u"yyyy-MM-dd"_s);
}

std::optional<QString> photoMetadataBlock(const PhotoFacts &facts, const std::optional<QString> &fileDate)
{
    QStringList lines;
    if (const auto taken = facts.captureDate ? exifDateString(*facts.captureDate) : std::nullopt)
        lines << u"- Date taken: "_s + onOneLine(*taken);
    else if (fileDate)
        lines << u"- File date (approximate): "_s + *fileDate;
    if (const auto camera = cameraDescription(facts.make, facts.model))
        lines << u"- Camera: "_s + onOneLine(*camera);
    if (lines.isEmpty())
        return std::nullopt;
    return u"PHOTO METADATA (facts about this file \u2014 use for the date and, where relevant, the device; never "
           "invent values beyond these):\n"_s
        + lines.join(u'\n');
}

} // namespace Varlo
