// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Message.h"

#include <QCoreApplication>
#include <vector>

namespace Varlo {

struct Message::Source {
    QString words; ///< where there is no key
    const char *context = nullptr;
    const char *key = nullptr;
    std::vector<Message> arguments;
};

Message::Message(Source source)
    : m_source(std::make_shared<const Source>(std::move(source)))
{
}

Message::Message(const QString &words)
    : m_source(words.isEmpty() ? nullptr : std::make_shared<const Source>(Source { words, nullptr, nullptr, {} }))
{
}

Message::Message(const char *context, const char *text, std::initializer_list<Message> arguments)
    : Message(Source { {}, context, text, arguments })
{
    Q_ASSERT(arguments.size() <= 3);
}

QString Message::text() const
{
    if (!m_source)
        return {};
    if (!m_source->key)
        return m_source->words;
    const QString words = QCoreApplication::translate(m_source->context, m_source->key);
    const std::vector<Message> &arguments = m_source->arguments;
    switch (arguments.size()) { // all at once: a "%2" in the first is no place for the second
    case 0:
        return words;
    case 1:
        return words.arg(arguments[0].text());
    case 2:
        return words.arg(arguments[0].text(), arguments[1].text());
    default:
        return words.arg(arguments[0].text(), arguments[1].text(), arguments[2].text());
    }
}

Message Message::replaced(const QString &before, const QString &after) const
{
    if (!m_source)
        return {};
    Source changed = *m_source;
    changed.words.replace(before, after);
    for (Message &argument : changed.arguments)
        argument = argument.replaced(before, after);
    return Message(std::move(changed));
}

} // namespace Varlo
