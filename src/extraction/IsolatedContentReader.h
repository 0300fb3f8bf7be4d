// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/ContentReader.h"
#include "extraction/isolation/ReadingLimits.h"
#include "extraction/isolation/SandboxLayers.h"
#include "extraction/PreviewReader.h"
#include "platform/FileFlags.h"
#include "platform/Result.h"
#include <functional>
#include <memory>
#include <optional>
#include <QJsonObject>

namespace Varlo {

/// What can be read here, and how safely.
struct ReadersReport {
    QJsonObject findings; ///< as the workers' side gives them
    std::optional<SandboxLayers> layers;
};

/// Reads plain text on threads of this process and everything else in a locked-down process for each file, since what
/// decodes such files is large, and the files are anybody's. Five at once; the others wait for their turn. A file whose
/// process dies, talks nonsense or takes too long is Unreadable, and the next one is read.
class IsolatedContentReader final : public ContentReader, public PreviewReader {
public:
    struct Options {
        QString program; ///< the starter; "" for the installed one
        ReadingLimits limits;
        std::function<void(const QString &)> warn; ///< is told, once, what the kernel does not offer; may be empty
    };

    /// The flags outlive the reader and are asked from several threads. Takes a QCoreApplication.
    IsolatedContentReader(const FileFlags &flags, Options options);
    /// Kills what is being read; waits for texts. Calls that are awaited then still get an outcome, from the event loop
    /// of the caller's thread.
    ~IsolatedContentReader() override;
    IsolatedContentReader(const IsolatedContentReader &) = delete;
    IsolatedContentReader &operator=(const IsolatedContentReader &) = delete;

    QCoro::Task<Extraction> read(std::filesystem::path path) override;
    QCoro::Task<Preview> preview(std::filesystem::path path, int longestSide) override;

    /// Starts what the first file would have to wait for. Nothing is started before that or the first file.
    void warmUp();
    /// Asks a worker what it can read. The error says for the user why it cannot be asked.
    [[nodiscard]] QCoro::Task<Result<ReadersReport, QString>> inspect();

private:
    struct State;
    // Shared with every call that is awaited.
    std::shared_ptr<State> m_state;
};

} // namespace Varlo
