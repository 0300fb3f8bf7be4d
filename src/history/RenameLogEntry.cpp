// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/RenameLogEntry.h"

#include "platform/shownPath.h"
#include <array>
#include <charconv>
#include <cmath>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr double secondsFrom1970To2001 = 978307200;

QString RenameLogEntry::id() const
{
    std::array<char, 32> text;
    const auto written = std::to_chars(text.data(), text.data() + text.size(), date);
    return shownPath(toPath) + u'@' + QString::fromLatin1(text.data(), written.ptr - text.data());
}

double secondsSince2001(const QDateTime &time)
{
    return static_cast<double>(time.toMSecsSinceEpoch()) / 1000 - secondsFrom1970To2001;
}

QDateTime timeFromSecondsSince2001(double seconds)
{
    const double milliseconds = std::round((seconds + secondsFrom1970To2001) * 1000);
    // The year 9999 and its mirror image: beyond it a time cannot be written as ISO 8601 any more.
    if (!(std::abs(milliseconds) < 253402300800000.0))
        return {};
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds), Qt::UTC);
}

static void insertPath(QJsonObject &object, const QString &key, const std::filesystem::path &path)
{
    const QByteArray bytes = QByteArray::fromStdString(path.native());
    const QString text = shownPath(path);
    object.insert(key, text);
    if (text.toUtf8() != bytes)
        object.insert(key + "Bytes"_L1, QString::fromLatin1(bytes.toBase64()));
}

static std::optional<std::filesystem::path> pathIn(const QJsonObject &object, const QString &key)
{
    const QJsonValue text = object.value(key);
    const QJsonValue encoded = object.value(key + "Bytes"_L1);
    if (!text.isString() || !(encoded.isUndefined() || encoded.isString()))
        return std::nullopt;
    if (encoded.isUndefined())
        return std::filesystem::path(text.toString().toStdString());
    const auto bytes
        = QByteArray::fromBase64Encoding(encoded.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes)
        return std::nullopt;
    return std::filesystem::path(bytes.decoded.toStdString());
}

QByteArray encodeRenameLog(const RenameLogEntries &entries)
{
    QJsonArray array;
    for (const RenameLogEntry &entry : entries) {
        QJsonObject object;
        insertPath(object, u"fromPath"_s, entry.fromPath);
        insertPath(object, u"toPath"_s, entry.toPath);
        object.insert("date"_L1, entry.date);
        if (entry.undoneAt)
            object.insert("undoneAt"_L1, *entry.undoneAt);
        array.append(object);
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

static std::optional<RenameLogEntry> decodeEntry(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const std::optional<std::filesystem::path> fromPath = pathIn(object, u"fromPath"_s);
    const std::optional<std::filesystem::path> toPath = pathIn(object, u"toPath"_s);
    const QJsonValue date = object.value("date"_L1);
    const QJsonValue undoneAt = object.value("undoneAt"_L1);
    if (!fromPath || !toPath || !date.isDouble())
        return std::nullopt;
    RenameLogEntry entry { *fromPath, *toPath, date.toDouble(), std::nullopt };
    if (undoneAt.isUndefined() || undoneAt.isNull())
        return entry;
    if (!undoneAt.isDouble())
        return std::nullopt;
    entry.undoneAt = undoneAt.toDouble();
    return entry;
}

std::optional<RenameLogEntries> decodeRenameLog(const QByteArray &data)
{
    const QJsonDocument document = QJsonDocument::fromJson(data);
    if (!document.isArray())
        return std::nullopt;
    RenameLogEntries entries;
    for (const QJsonValue value : document.array()) {
        const std::optional<RenameLogEntry> entry = decodeEntry(value);
        if (!entry)
            return std::nullopt;
        entries.push_back(*entry);
    }
    return entries;
}

} // namespace Varlo
