// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/ThreadContentReader.h"

#include "extraction/extractContent.h"
#include <functional>
#include <QCoroFuture>
#include <QtConcurrentRun>

namespace Varlo {

ThreadContentReader::ThreadContentReader(const FileFlags &flags)
    : m_flags(flags)
{
    m_threads.setMaxThreadCount(5);
}

QCoro::Task<Extraction> ThreadContentReader::read(std::filesystem::path path)
{
    const QFuture<Extraction> reading
        = QtConcurrent::run(&m_threads, extractContent, std::move(path), std::cref(m_flags));
    co_return co_await reading;
}

} // namespace Varlo
