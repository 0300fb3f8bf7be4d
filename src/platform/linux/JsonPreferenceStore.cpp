// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/JsonPreferenceStore.h"

#include "platform/linux/replaceFile.h"
#include "platform/linux/setAside.h"
#include "platform/linux/StateFolders.h"
#include "platform/shownPath.h"
#include <QCoreApplication>
#include <QJsonDocument>
#include <QScopedValueRollback>

namespace Varlo {

using namespace Qt::StringLiterals;
using std::filesystem::path;

namespace {

struct DecodedValue {
    std::optional<PreferenceValue> value;
    bool isComplete = true; ///< false when something was stored that could not be made out
};

std::optional<QByteArray> decodeData(const QJsonValue &value)
{
    if (!value.isString())
        return {};
    const auto decoded
        = QByteArray::fromBase64Encoding(value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return {};
    return *decoded;
}

DecodedValue decodeDictionary(const QJsonObject &object)
{
    DecodedValue result;
    PreferenceDictionary dictionary;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (const auto data = decodeData(entry.value()))
            dictionary.emplace(entry.key(), *data);
        else
            result.isComplete = false;
    }
    result.value = dictionary;
    return result;
}

DecodedValue decode(const QJsonValue &stored, PreferenceType type)
{
    if (stored.isUndefined())
        return {};
    if (type == PreferenceType::Bool && stored.isBool())
        return { stored.toBool() };
    if (type == PreferenceType::String && stored.isString())
        return { stored.toString() };
    if (type == PreferenceType::Data) {
        if (const auto data = decodeData(stored))
            return { *data };
    }
    if (type == PreferenceType::Dictionary && stored.isObject())
        return decodeDictionary(stored.toObject());
    return { {}, false };
}

QString base64(const QByteArray &data) { return QString::fromLatin1(data.toBase64()); }

QJsonValue encode(const PreferenceValue &value)
{
    return std::visit(
        Overloaded { [](bool flag) { return QJsonValue(flag); }, [](const QString &text) { return QJsonValue(text); },
            [](const QByteArray &data) { return QJsonValue(base64(data)); },
            [](const PreferenceDictionary &dictionary) {
                QJsonObject object;
                for (const auto &[key, data] : dictionary)
                    object.insert(key, base64(data));
                return QJsonValue(object);
            } },
        value);
}

bool isDamage(const StateFileError &error) { return error.kind == StateFileError::Kind::TooLarge; }

bool isAbsence(const StateFileError &error)
{
    return error.kind == StateFileError::Kind::Missing || error.kind == StateFileError::Kind::DanglingLink;
}

/// Why nothing may be stored over a file that could not be read.
SystemError systemError(const StateFileError &error)
{
    return error.kind == StateFileError::Kind::NotRegular ? SystemError { EEXIST } : error.error;
}

} // namespace

JsonPreferenceStore::JsonPreferenceStore(path file, QObject *parent)
    : PreferenceStore(parent)
    , m_file(std::move(file))
{
    load();
}

JsonPreferenceStore::~JsonPreferenceStore() = default;

std::optional<PreferenceValue> JsonPreferenceStore::value(const QString &key, PreferenceType type) const
{
    return decode(m_values.value(key), type).value;
}

Result<void, SystemError> JsonPreferenceStore::update(const QString &key, PreferenceType type, const Change &change)
{
    QSet<QString> changedKeys;
    const auto updated = updateUnderLock(key, type, change, changedKeys);
    for (const QString &changedKey : std::as_const(changedKeys))
        emit changed(changedKey);
    return updated;
}

Result<void, SystemError> JsonPreferenceStore::updateUnderLock(
    const QString &key, PreferenceType type, const Change &change, QSet<QString> &changedKeys)
{
    const auto held = lock();
    if (!held)
        return tl::unexpected(held.error());
    const QScopedValueRollback isLocked(m_isLocked, true);
    removeReplacementLeftovers(m_file);
    const auto onDisk = readUnderLock();
    if (!onDisk)
        return tl::unexpected(onDisk.error());
    changedKeys = adopt(*onDisk);

    const DecodedValue current = decode(onDisk->value(key), type);
    const auto replacement = change(current.value);
    QJsonObject values = *onDisk;
    if (replacement)
        values.insert(key, encode(*replacement));
    else
        values.remove(key);
    if (values == *onDisk)
        return {};
    if (!current.isComplete) {
        if (const auto copied = copyUnderLock(); !copied)
            return copied;
    }
    if (const auto written = write(values); !written)
        return written;
    changedKeys.unite(adopt(values));
    return {};
}

Result<FileLock, SystemError> JsonPreferenceStore::lock() const
{
    if (const auto made = createStateFolder(m_file.parent_path()); !made)
        return tl::unexpected(made.error());
    path lockFile = m_file;
    lockFile += ".lock";
    return FileLock::acquire(lockFile);
}

Result<QJsonObject, SystemError> JsonPreferenceStore::readUnderLock()
{
    auto values = readOrReplace();
    m_readError = values ? std::nullopt : std::optional(values.error());
    return values;
}

/// What is on disk, or what stands in for it once a damaged file has been set aside.
Result<QJsonObject, SystemError> JsonPreferenceStore::readOrReplace()
{
    const auto content = readStateFile(m_file, sizeLimit);
    if (!content && isAbsence(content.error()))
        return QJsonObject();
    if (!content && !isDamage(content.error())) {
        noticeUnreadable(content.error());
        return tl::unexpected(systemError(content.error()));
    }
    if (content) {
        if (const auto values = parse(*content))
            return *values;
    }
    if (const auto setAside = setAsideDamaged(); !setAside)
        return tl::unexpected(setAside.error());
    if (!m_values.isEmpty()) {
        if (const auto written = write(m_values); !written)
            return tl::unexpected(written.error());
    }
    return m_values;
}

/// Nothing when the content is not one JSON object. It is mostly that of the last time.
std::optional<QJsonObject> JsonPreferenceStore::parse(const QByteArray &content)
{
    if (m_parsedContent.isEmpty() || content != m_parsedContent) {
        const QJsonDocument document = QJsonDocument::fromJson(content);
        if (!document.isObject())
            return {};
        m_parsedContent = content;
        m_parsedValues = document.object();
    }
    return m_parsedValues;
}

Result<void, SystemError> JsonPreferenceStore::write(const QJsonObject &values)
{
    const QByteArray content = QJsonDocument(values).toJson();
    if (content.size() > sizeLimit)
        return tl::unexpected(SystemError { EFBIG });
    return replaceFile(m_file, content);
}

Result<void, SystemError> JsonPreferenceStore::setAsideDamaged()
{
    const auto kept = setAside(m_file);
    if (!kept) {
        notice({ "JsonPreferenceStore",
            QT_TRANSLATE_NOOP("JsonPreferenceStore",
                "The settings in \"%1\" are damaged and could not be set aside: %2 Nothing can be saved until that is "
                "done."),
            { shownPath(m_file), kept.error().description() } });
        return tl::unexpected(kept.error());
    }
    notice({ "JsonPreferenceStore",
        QT_TRANSLATE_NOOP(
            "JsonPreferenceStore", "The settings in \"%1\" were damaged. The damaged file was kept as \"%2\"."),
        { shownPath(m_file), shownPath(*kept) } });
    return {};
}

Result<void, SystemError> JsonPreferenceStore::keepCopy()
{
    if (m_isLocked)
        return copyUnderLock();
    const auto held = lock();
    if (!held)
        return tl::unexpected(held.error());
    const QScopedValueRollback isLocked(m_isLocked, true);
    return copyUnderLock();
}

Result<void, SystemError> JsonPreferenceStore::copyUnderLock()
{
    if (m_hasCopied)
        return {};
    const auto content = readStateFile(m_file, sizeLimit);
    if (!content)
        return isAbsence(content.error()) ? Result<void, SystemError> {} : tl::unexpected(systemError(content.error()));
    const auto kept = Varlo::keepCopy(m_file, *content);
    if (!kept)
        return tl::unexpected(kept.error());
    m_hasCopied = true;
    notice({ "JsonPreferenceStore",
        QT_TRANSLATE_NOOP(
            "JsonPreferenceStore", "A part of the settings in \"%1\" was damaged. A copy as it was is in \"%2\"."),
        { shownPath(m_file), shownPath(*kept) } });
    return {};
}

/// Takes over the values and returns the keys that differ from before.
QSet<QString> JsonPreferenceStore::adopt(const QJsonObject &values)
{
    QSet<QString> keys;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (m_values.value(entry.key()) != entry.value())
            keys.insert(entry.key());
    }
    for (auto entry = m_values.begin(); entry != m_values.end(); ++entry) {
        if (!values.contains(entry.key()))
            keys.insert(entry.key());
    }
    m_values = values;
    return keys;
}

void JsonPreferenceStore::load()
{
    const auto content = readStateFile(m_file, sizeLimit);
    if (content) {
        if (const auto values = parse(*content)) {
            m_values = *values;
            return;
        }
    } else if (!isDamage(content.error())) {
        if (content.error().kind != StateFileError::Kind::Missing)
            noticeUnreadable(content.error());
        if (!isAbsence(content.error()))
            m_readError = systemError(content.error());
        return;
    }
    const auto held = lock();
    if (!held) {
        m_readError = held.error();
        notice(
            { "JsonPreferenceStore", QT_TRANSLATE_NOOP("JsonPreferenceStore", "The settings in \"%1\" are damaged: %2"),
                { shownPath(m_file), held.error().description() } });
        return;
    }
    if (const auto values = readUnderLock())
        m_values = *values;
}

void JsonPreferenceStore::observe()
{
    if (m_watcher)
        return;
    m_watcher = new QFileSystemWatcher(this);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &JsonPreferenceStore::reload);
    reload();
}

/// Watches folders, as a replaced file is another file. Where the folder is missing, the nearest one above it is
/// watched for its coming.
void JsonPreferenceStore::watch()
{
    QStringList folders;
    const auto destination = linkDestination(m_file);
    for (path folder : { m_file.parent_path(), destination.value_or(m_file).parent_path() }) {
        std::error_code error;
        while (!std::filesystem::is_directory(folder, error) && folder.has_relative_path())
            folder = folder.parent_path();
        folders.append(shownPath(folder));
    }
    folders.removeDuplicates();
    for (const QString &watched : m_watcher->directories()) {
        if (!folders.contains(watched))
            m_watcher->removePath(watched);
    }
    for (const QString &folder : std::as_const(folders)) {
        if (!m_watcher->directories().contains(folder))
            m_watcher->addPath(folder);
    }
}

void JsonPreferenceStore::reload()
{
    if (m_isLocked)
        return;
    watch();
    const auto content = readStateFile(m_file, sizeLimit);
    if (!content && content.error().kind != StateFileError::Kind::Missing)
        return;
    // Content that does not parse may be an editor's file half written: the values known stand until something is
    // stored, and the damage is looked at then.
    const auto values = content ? parse(*content) : QJsonObject();
    if (!values)
        return;
    m_readError.reset();
    const QSet<QString> changedKeys = adopt(*values);
    for (const QString &key : changedKeys)
        emit changed(key);
}

void JsonPreferenceStore::notice(const Message &message)
{
    if (m_noticesGiven.contains(message.text()))
        return;
    m_noticesGiven.insert(message.text());
    m_notices.append(message);
}

void JsonPreferenceStore::noticeUnreadable(const StateFileError &error)
{
    notice({ "JsonPreferenceStore",
        QT_TRANSLATE_NOOP(
            "JsonPreferenceStore", "The settings in \"%1\" could not be read, and the default settings hold: %2"),
        { shownPath(m_file), error.description() } });
}

QStringList JsonPreferenceStore::takeNotices()
{
    const QList<Message> notices = std::exchange(m_notices, {});
    return { notices.begin(), notices.end() };
}

} // namespace Varlo
