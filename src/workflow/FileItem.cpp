// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/FileItem.h"

#include "extraction/supportedExtensions.h"
#include "platform/pathExtension.h"
#include "platform/Result.h"
#include <algorithm>
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

QString label(const FileItem::Status &status)
{
    const auto words = [](const char *text) { return QCoreApplication::translate("FileItem", text); };
    return std::visit(
        Overloaded {
            [&](FileItem::Pending) { return words(QT_TRANSLATE_NOOP("FileItem", "Pending")); },
            [&](FileItem::Processing) { return words(QT_TRANSLATE_NOOP("FileItem", "Analyzing…")); },
            [&](FileItem::Suggested) { return words(QT_TRANSLATE_NOOP("FileItem", "Suggested")); },
            [&](FileItem::Renamed) { return words(QT_TRANSLATE_NOOP("FileItem", "Renamed")); },
            [&](FileItem::AlreadyRenamed) { return words(QT_TRANSLATE_NOOP("FileItem", "Already renamed")); },
            [&](FileItem::NoTextFound) { return words(QT_TRANSLATE_NOOP("FileItem", "No text found")); },
            [&](FileItem::NotSupportedYet) { return words(QT_TRANSLATE_NOOP("FileItem", "Not supported yet")); },
            [&](const FileItem::Failed &) { return words(QT_TRANSLATE_NOOP("FileItem", "Failed")); },
        },
        status);
}

QString rawValue(const FileItem::Status &status)
{
    return std::visit(Overloaded {
                          [](FileItem::Pending) { return u"pending"_s; },
                          [](FileItem::Processing) { return u"processing"_s; },
                          [](FileItem::Suggested) { return u"suggested"_s; },
                          [](FileItem::Renamed) { return u"renamed"_s; },
                          [](FileItem::AlreadyRenamed) { return u"alreadyRenamed"_s; },
                          [](FileItem::NoTextFound) { return u"noTextFound"_s; },
                          [](FileItem::NotSupportedYet) { return u"notSupportedYet"_s; },
                          [](const FileItem::Failed &) { return u"failed"_s; },
                      },
        status);
}

QString iconName(const FileItem &item)
{
    const std::string extension = lowerCaseExtension(item.path);
    const auto isOneOf = [&extension](const auto &list) { return std::ranges::find(list, extension) != list.end(); };
    if (isOneOf(imageExtensions))
        return u"photo"_s;
    if (isOneOf(pdfExtensions))
        return u"doc.text"_s;
    if (isOneOf(officeExtensions))
        return u"doc.richtext"_s;
    if (isOneOf(textExtensions))
        return u"doc.plaintext"_s;
    return u"doc"_s;
}

} // namespace Varlo
