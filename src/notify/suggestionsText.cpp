// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "notify/suggestionsText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Varlo {

using namespace Qt::StringLiterals;

// Device and inode are written out in decimal, since JSON's numbers end at 53 bits.
QString suggestionsText(const std::vector<SuggestedFile> &files)
{
    QJsonArray entries;
    for (const SuggestedFile &file : files) {
        entries.append(QJsonObject { { u"name"_s, file.name }, { u"tags"_s, QJsonArray::fromStringList(file.tags) },
            { u"device"_s, QString::number(file.identity.device) },
            { u"inode"_s, QString::number(file.identity.inode) } });
    }
    return QString::fromUtf8(QJsonDocument(entries).toJson(QJsonDocument::Compact));
}

static std::optional<SuggestedFile> suggestedFile(const std::filesystem::path &path, const QJsonObject &entry)
{
    SuggestedFile file { path, {}, entry.value("name"_L1).toString(), {} };
    bool hasDevice = false;
    bool hasInode = false;
    file.identity.device = entry.value("device"_L1).toString().toULongLong(&hasDevice);
    file.identity.inode = entry.value("inode"_L1).toString().toULongLong(&hasInode);
    if (!hasDevice || !hasInode || file.name.isEmpty())
        return {};
    const QJsonArray tags = entry.value("tags"_L1).toArray();
    for (const QJsonValueConstRef tag : tags)
        file.tags.append(tag.toString());
    return file;
}

std::vector<SuggestedFile> suggestedFiles(const std::vector<std::filesystem::path> &paths, const QString &text)
{
    const QJsonArray entries = QJsonDocument::fromJson(text.toUtf8()).array();
    if (entries.size() != static_cast<qsizetype>(paths.size()))
        return {};
    std::vector<SuggestedFile> files;
    for (qsizetype index = 0; index < entries.size(); ++index) {
        if (auto file = suggestedFile(paths[static_cast<std::size_t>(index)], entries[index].toObject()))
            files.push_back(std::move(*file));
    }
    return files;
}

} // namespace Varlo
