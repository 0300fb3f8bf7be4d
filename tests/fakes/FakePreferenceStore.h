// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PreferenceStore.h"

namespace Varlo {

/// Preferences in memory.
class FakePreferenceStore final : public PreferenceStore {
public:
    std::map<QString, PreferenceValue> values;
    std::optional<SystemError> failure; ///< what every attempt to store something answers
    std::optional<SystemError> readFailure; ///< why no value can be read
    int copies = 0; ///< how often somebody asked for a copy of what is stored
    QStringList notices;

    /// As if another process had stored it.
    void changeElsewhere(const QString &key, const PreferenceValue &value)
    {
        values.insert_or_assign(key, value);
        emit changed(key);
    }

    [[nodiscard]] std::optional<PreferenceValue> value(const QString &key, PreferenceType type) const override
    {
        const auto found = values.find(key);
        if (readFailure || found == values.end() || found->second.index() != static_cast<size_t>(type))
            return {};
        return found->second;
    }

    [[nodiscard]] Result<void, SystemError> update(
        const QString &key, PreferenceType type, const Change &change) override
    {
        if (failure || readFailure)
            return tl::unexpected(failure ? *failure : *readFailure);
        const auto before = value(key, type);
        const auto after = change(before);
        if (after == before)
            return {};
        if (after)
            values.insert_or_assign(key, *after);
        else
            values.erase(key);
        emit changed(key);
        return {};
    }

    [[nodiscard]] Result<void, SystemError> keepCopy() override
    {
        ++copies;
        return {};
    }
    [[nodiscard]] std::optional<SystemError> readError() const override { return readFailure; }
    void observe() override { }
    [[nodiscard]] QStringList takeNotices() override { return std::exchange(notices, {}); }
};

} // namespace Varlo
