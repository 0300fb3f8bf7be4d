// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include <cstdio>
#include <QCoreApplication>
#include <QCoroTask>
#include <QFile>
#include <termios.h>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

/// Keeps what is typed off the screen while it lives.
class HiddenTyping {
public:
    HiddenTyping()
        : m_isChanged(::tcgetattr(STDIN_FILENO, &m_before) == 0)
    {
        termios hidden = m_before;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        if (m_isChanged)
            ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~HiddenTyping()
    {
        if (m_isChanged)
            ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
    }
    HiddenTyping(const HiddenTyping &) = delete;
    HiddenTyping &operator=(const HiddenTyping &) = delete;

private:
    termios m_before {};
    bool m_isChanged;
};

} // namespace

/// One line from a hidden prompt, or all of standard input without the line break that `echo` puts at its end.
static QString readKey()
{
    constexpr qint64 longestKey = 64 * 1024;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return {};
    QByteArray key;
    if (::isatty(STDIN_FILENO)) {
        const HiddenTyping hidden; // before the question: a key that is pasted at once would be seen, and thrown away
        std::fputs(qPrintable(QCoreApplication::translate("Terminal", "API key (not shown): ")), stderr);
        key = input.readLine(longestKey);
        std::fputs("\n", stderr);
    } else {
        key = input.read(longestKey);
    }
    if (key.endsWith('\n'))
        key.chop(1);
    return QString::fromUtf8(key);
}

static QString failureText(SecretStore::Failure failure)
{
    switch (failure) {
    case SecretStore::Failure::NotFound:
        return QCoreApplication::translate("Terminal", "No API key set.");
    case SecretStore::Failure::Locked:
        return QCoreApplication::translate("Terminal", "The keyring is locked. Unlock it and try again.");
    case SecretStore::Failure::Unavailable:
        return QCoreApplication::translate("Terminal", "The secret store does not answer.");
    }
    Q_UNREACHABLE();
}

static ExitCode complainOf(SecretStore::Failure failure, Terminal &terminal)
{
    terminal.complain(failureText(failure));
    return ExitCode::SomeFailed;
}

ExitCode run(const KeyCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    const std::optional<Endpoint> endpoint = session.endpoint(command.endpoint);
    if (!endpoint)
        return ExitCode::WrongUsage;
    APIKeyStore &keys = session.keyStore(*endpoint);
    switch (command.action) {
    case KeyAction::Status: {
        const auto key = QCoro::waitFor(keys.loadKey());
        if (!key)
            return complainOf(key.error(), terminal);
        terminal.print(QCoreApplication::translate("Terminal", "A key is stored for %1.").arg(endpoint->origin()));
        return ExitCode::Success;
    }
    case KeyAction::Set: {
        const QString key = readKey();
        if (key.trimmed().isEmpty()) {
            terminal.complain(QCoreApplication::translate("Terminal", "no key was given"));
            return ExitCode::WrongUsage;
        }
        const auto saved = QCoro::waitFor(keys.saveKey(key));
        return saved ? ExitCode::Success : complainOf(saved.error(), terminal);
    }
    case KeyAction::Remove: {
        const auto removed = QCoro::waitFor(keys.deleteKey());
        return removed ? ExitCode::Success : complainOf(removed.error(), terminal);
    }
    }
    Q_UNREACHABLE();
}

} // namespace Varlo
