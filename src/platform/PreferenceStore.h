// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/SystemError.h"
#include <functional>
#include <map>
#include <optional>
#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <variant>

namespace Varlo {

using PreferenceDictionary = std::map<QString, QByteArray>;
/// What one key can hold.
using PreferenceValue = std::variant<bool, QString, QByteArray, PreferenceDictionary>;
/// The kind of value that a key is declared with; a stored value of another kind reads as absent.
enum class PreferenceType { Bool, String, Data, Dictionary };

/// The user's preferences, one value a key. Lives on the main thread; each change is stored before its call returns.
class PreferenceStore : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The stored value, or nothing when the key is absent or holds another kind of value.
    [[nodiscard]] virtual std::optional<PreferenceValue> value(const QString &key, PreferenceType type) const = 0;

    /// Why what is stored could not be read when that was tried last: the values are missing then, not absent.
    [[nodiscard]] virtual std::optional<SystemError> readError() const { return {}; }

    /// Reads the value as it is on disk now, lets `change` turn it into the one to store (nothing removes the key), and
    /// stores that, while no other process can do the same: what another one wrote a moment ago is never lost.
    using Change = std::function<std::optional<PreferenceValue>(std::optional<PreferenceValue> current)>;
    [[nodiscard]] virtual Result<void, SystemError> update(
        const QString &key, PreferenceType type, const Change &change)
        = 0;

    /// Keeps a copy of everything as it is stored now, for somebody who is about to replace a value that he cannot make
    /// sense of. May be called from within a `Change`. One copy a run is enough; the user is told of it by a notice.
    [[nodiscard]] virtual Result<void, SystemError> keepCopy() { return {}; }

    /// Starts to notice what other processes change; `changed` then comes for their changes as well.
    virtual void observe() = 0;

    /// Messages about damaged state that was set aside, each given out once.
    [[nodiscard]] virtual QStringList takeNotices() = 0;

signals:
    void changed(const QString &key);
};

} // namespace Varlo
