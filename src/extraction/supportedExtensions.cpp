// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/supportedExtensions.h"

#include <algorithm>
#include <QCoreApplication>

namespace Varlo {

using Extensions = std::vector<std::string_view>;

template <typename... Lists> static Extensions sorted(const Lists &...lists)
{
    Extensions all;
    all.reserve((lists.size() + ...));
    (all.insert(all.end(), lists.begin(), lists.end()), ...);
    std::sort(all.begin(), all.end());
    return all;
}

const std::set<std::string_view> &supportedExtensions()
{
    static const std::set<std::string_view> all = [] {
        const Extensions list = sorted(textExtensions, pdfExtensions, imageExtensions, officeExtensions);
        return std::set<std::string_view>(list.begin(), list.end());
    }();
    return all;
}

QList<FormatSection> formatSections()
{
    const auto title = [](const char *text) { return QCoreApplication::translate("SupportedFormats", text); };
    return {
        { title(QT_TRANSLATE_NOOP("SupportedFormats", "Documents")), sorted(pdfExtensions, officeExtensions) },
        { title(QT_TRANSLATE_NOOP("SupportedFormats", "Images")), sorted(imageExtensions) },
        { title(QT_TRANSLATE_NOOP("SupportedFormats", "Text & data")), sorted(textExtensions) },
        { title(QT_TRANSLATE_NOOP("SupportedFormats", "Video")), { "avi", "m4v", "mkv", "mov", "mp4", "webm" }, true },
        { title(QT_TRANSLATE_NOOP("SupportedFormats", "Audio")), { "aac", "flac", "m4a", "mp3", "ogg", "wav" }, true },
    };
}

} // namespace Varlo
