// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/FileLock.h"
#include "platform/linux/readStateFile.h"
#include "platform/PreferenceStore.h"
#include <filesystem>
#include <QFileSystemWatcher>
#include <QJsonObject>
#include <QSet>

namespace Varlo {

/// Every preference in one JSON object in one file, which is replaced whole. A Bool is a JSON boolean, a String a
/// string, a Data a string of base64 (RFC 4648, padded), a Dictionary an object of such strings. Keys that nobody here
/// knows stay as they are. Not QSettings: on a nearly full disk that reports success and truncates.
///
/// Whoever changes the file holds the lock beside it ("preferences.json.lock") and reads it again first. Readers need
/// no lock. A damaged file is renamed to "preferences.damaged-1.json" (or -2, ...), and what this process last read of
/// it goes on, or the defaults. One that cannot be read for another reason is left alone and nothing is stored.
class JsonPreferenceStore final : public PreferenceStore {
    Q_OBJECT
public:
    static constexpr qint64 sizeLimit = 16 * 1024 * 1024;

    /// Reads `file` at once. Its folder is made when something is stored first.
    explicit JsonPreferenceStore(std::filesystem::path file, QObject *parent = nullptr);
    ~JsonPreferenceStore() override;

    [[nodiscard]] std::optional<PreferenceValue> value(const QString &key, PreferenceType type) const override;
    /// Errors beyond the system's: EAGAIN when another process kept the lock for 5 seconds, EFBIG when the file would
    /// exceed `sizeLimit`.
    [[nodiscard]] std::optional<SystemError> readError() const override { return m_readError; }
    [[nodiscard]] Result<void, SystemError> update(
        const QString &key, PreferenceType type, const Change &change) override;
    [[nodiscard]] Result<void, SystemError> keepCopy() override;
    void observe() override;
    [[nodiscard]] QStringList takeNotices() override;

private:
    [[nodiscard]] Result<FileLock, SystemError> lock() const;
    [[nodiscard]] Result<QJsonObject, SystemError> readUnderLock();
    [[nodiscard]] Result<QJsonObject, SystemError> readOrReplace();
    [[nodiscard]] Result<void, SystemError> updateUnderLock(
        const QString &key, PreferenceType type, const Change &change, QSet<QString> &changedKeys);
    [[nodiscard]] Result<void, SystemError> write(const QJsonObject &values);
    [[nodiscard]] Result<void, SystemError> setAsideDamaged();
    [[nodiscard]] Result<void, SystemError> copyUnderLock();
    [[nodiscard]] std::optional<QJsonObject> parse(const QByteArray &content);
    [[nodiscard]] QSet<QString> adopt(const QJsonObject &values);
    void load();
    void reload();
    void watch();
    void notice(const Message &message);
    void noticeUnreadable(const StateFileError &error);

    std::filesystem::path m_file;
    QJsonObject m_values; ///< as read or written last
    QByteArray m_parsedContent; ///< of the file, and what it says
    QJsonObject m_parsedValues;
    std::optional<SystemError> m_readError;
    bool m_isLocked = false; ///< by a call further up the stack
    bool m_hasCopied = false;
    QFileSystemWatcher *m_watcher = nullptr;
    QList<Message> m_notices;
    QSet<QString> m_noticesGiven;
};

} // namespace Varlo
