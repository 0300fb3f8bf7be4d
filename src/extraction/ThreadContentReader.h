// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/ContentReader.h"
#include "platform/FileFlags.h"
#include <QThreadPool>

namespace Varlo {

/// Reads up to five files at once on threads of its own; further ones wait for their turn. Its destructor waits for
/// the files in hand; calls that are awaited then still get their outcome, from the event loop of the caller's thread.
class ThreadContentReader final : public ContentReader {
public:
    /// The flags outlive the reader and are asked from several threads.
    explicit ThreadContentReader(const FileFlags &flags);
    QCoro::Task<Extraction> read(std::filesystem::path path) override;

private:
    const FileFlags &m_flags;
    QThreadPool m_threads;
};

} // namespace Varlo
