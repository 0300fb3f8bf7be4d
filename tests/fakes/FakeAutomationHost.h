// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AutomationHost.h"
#include <QStringList>

namespace Varlo {

/// Answers as it is told, and keeps what it was asked.
struct FakeAutomationHost : AutomationHost {
    struct CompiledSource final : Script {
        QString source;
    };
    struct Question {
        QByteArray target;
        quint32 eventClass, eventId;
        bool askUser;

        bool operator==(const Question &) const = default;
    };

    bool hasTarget = true;
    int status = noError;
    bool compiles = true;
    Result<std::optional<QString>, ScriptError> answer = std::nullopt;
    std::optional<Question> question; ///< the latest
    QStringList executed; ///< the source of each script

    std::optional<QByteArray> describeTarget(const QString &bundleIdentifier) override
    {
        return hasTarget ? std::optional(bundleIdentifier.toUtf8()) : std::nullopt;
    }
    int permissionStatus(const QByteArray &target, quint32 eventClass, quint32 eventId, bool askUser) override
    {
        question = { target, eventClass, eventId, askUser };
        return status;
    }
    std::unique_ptr<Script> compile(const QString &source) override
    {
        if (!compiles)
            return nullptr;
        auto script = std::make_unique<CompiledSource>();
        script->source = source;
        return script;
    }
    Result<std::optional<QString>, ScriptError> execute(Script &script) override
    {
        executed.append(static_cast<CompiledSource &>(script).source);
        return answer;
    }
};

} // namespace Varlo
