// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <QObject>
#include <string>
#include <vector>

class QSocketNotifier;

namespace Varlo {

/// Tells that something happens at the top level of one folder (inotify(7)). Holds no descriptor of the folder itself,
/// so its file system can be unmounted. What other machines do on a network file system is not noticed.
class FolderEvents final : public QObject {
    Q_OBJECT
public:
    /// What happened, in part.
    struct Slice {
        bool isEmpty = true; ///< nothing did
        std::vector<std::string> arrived; ///< names of entries that were made or moved here
        bool isFolderLost = false; ///< deleted, moved or unmounted; nothing will follow
    };

    /// Follows links. Errors: those of opening the folder, EMFILE and ENOSPC where the user watches too much already.
    [[nodiscard]] static Result<FolderEvents *, SystemError> open(const std::filesystem::path &folder, QObject *parent);
    ~FolderEvents() override;

    /// The next events, at most 64 KiB of them; never waits. A queue that ran over is an event without a name, since
    /// whoever lists the folder now misses nothing.
    [[nodiscard]] Slice read();
    void close();

signals:
    /// There is something to read.
    void pending();

private:
    FolderEvents(FileDescriptor queue, QObject *parent);

    FileDescriptor m_queue;
    QSocketNotifier *m_notifier;
};

} // namespace Varlo
