// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/OneTimeBody.h"

#include <cstring>

namespace Varlo {

OneTimeBody::OneTimeBody(QByteArray bytes, QObject *parent)
    : QIODevice(parent)
    , m_bytes(std::move(bytes))
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 OneTimeBody::size() const { return m_bytes.size(); }

bool OneTimeBody::seek(qint64 position) { return position == m_sent && QIODevice::seek(position); }

qint64 OneTimeBody::readData(char *target, qint64 limit)
{
    const qint64 length = std::min(limit, m_bytes.size() - m_sent);
    std::memcpy(target, m_bytes.constData() + m_sent, static_cast<size_t>(length));
    m_sent += length;
    return length;
}

qint64 OneTimeBody::writeData(const char *, qint64) { return -1; }

} // namespace Varlo
