// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>

namespace Varlo {

/// Apple events and AppleScript, by which another program does what Varlo has no right to. Only macOS has them:
/// wherever a pointer to the host is taken, null means that the system has none.
struct AutomationHost {
    // Of Apple's MacErrors.h: errAEEventNotPermitted and errAEEventWouldRequireUserConsent.
    static constexpr int noError = 0;
    static constexpr int eventNotPermitted = -1743; ///< the user or the system refuses
    static constexpr int consentNeeded = -1744; ///< the user has not been asked yet

    /// A script ready to be executed; each host has its own form of it.
    struct Script {
        virtual ~Script() = default;
    };
    struct ScriptError {
        std::optional<int> number; ///< absent also when the host's number is no integer
        std::optional<QString> message; ///< for the user, in the words of the scripted program

        bool operator==(const ScriptError &) const = default;
    };

    virtual ~AutomationHost() = default;
    /// The descriptor, in the system's own bytes, of the program with this bundle identifier ("com.apple.finder") as
    /// the receiver of events. Absent when none can be made. Safe on any thread.
    [[nodiscard]] virtual std::optional<QByteArray> describeTarget(const QString &bundleIdentifier) = 0;
    /// Whether Varlo may send such events to the target: noError, eventNotPermitted, consentNeeded or another code of
    /// the system's. Class and identifier are four-character codes. With `askUser` the system may show its question,
    /// and the call blocks until it is answered; without, it never asks. Safe on any thread.
    [[nodiscard]] virtual int permissionStatus(
        const QByteArray &target, quint32 eventClass, quint32 eventId, bool askUser)
        = 0;
    /// The script of a source text; null when it does not compile. Nothing is executed. Main thread.
    [[nodiscard]] virtual std::unique_ptr<Script> compile(const QString &source) = 0;
    /// Executes what `compile` of this host gave, and blocks until the scripted program is done. The script's result as
    /// text; absent when the result has no text. Main thread.
    [[nodiscard]] virtual Result<std::optional<QString>, ScriptError> execute(Script &script) = 0;
};

} // namespace Varlo
