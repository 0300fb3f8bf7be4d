// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AutomationHost.h"
#include <QList>

namespace Varlo {

/// As much of AppleScript, and of Finder's own terms, as renaming one file takes, on real files. What it does not know
/// it refuses, so that a slip in a script shows: unknown words when the script is compiled, values of the wrong kind
/// (AppleScript would convert some) when it is executed. A loop ends after 1000 rounds, with an error.
class AppleScriptInterpreter {
public:
    struct Token {
        enum Kind { Word, Text, Number, Symbol, LineEnd } kind;
        QString text; ///< of a Text without its quotes and escapes

        bool operator==(const Token &) const = default;
    };
    /// The script in tokens; absent when it does not compile.
    [[nodiscard]] static std::optional<QList<Token>> compile(const QString &source);
    /// Executes a compiled script. Its result is what it returns, as text; absent when it ends without returning.
    [[nodiscard]] static Result<std::optional<QString>, AutomationHost::ScriptError> execute(
        const QList<Token> &script);
};

} // namespace Varlo
