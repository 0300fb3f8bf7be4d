// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <memory>
#include <QString>

namespace Varlo {

/// What the user is told. It is put into words when it is shown, in the language that the interface has then.
class Message {
public:
    Message() = default;
    /// Words that are the same in every language: those of the system, of a server, of another program.
    Message(const QString &words);
    /// A text that translators know under this context; both live for ever. Up to three arguments stand in for %1 to
    /// %3.
    Message(const char *context, const char *text, std::initializer_list<Message> arguments = {});

    [[nodiscard]] QString text() const;
    operator QString() const { return text(); }
    /// With other words in place of some, wherever somebody else's words hold them; Varlo's own stay.
    [[nodiscard]] Message replaced(const QString &before, const QString &after) const;

    /// Whether they read the same now.
    bool operator==(const Message &other) const { return text() == other.text(); }

private:
    struct Source;
    explicit Message(Source source);
    std::shared_ptr<const Source> m_source; // null for no words at all
};

} // namespace Varlo
