// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/answerMessages.h"
#include "extraction/isolation/SandboxLayers.h"
#include "extraction/isolation/WorkerAnswer.h"
#include "extraction/isolation/WorkerJob.h"
#include <optional>
#include <QByteArrayView>

namespace Varlo {

/// Puts a worker's answer together from its messages. A hostile file may have taken the worker over, so nothing is
/// believed: sizes are bounded before anything is kept, and the content is what a reader may answer to this job, or it
/// is nonsense.
class WorkerAnswerDecoder {
public:
    enum class State {
        Going,
        Complete, ///< only the end of the socket may follow
        Nonsense,
    };

    explicit WorkerAnswerDecoder(WorkerJob job);

    /// Takes the next message.
    State take(QByteArrayView message);
    [[nodiscard]] State state() const { return m_state; }
    /// Absent before the worker has said so.
    [[nodiscard]] const std::optional<SandboxLayers> &layers() const { return m_layers; }
    /// The answer, once it is complete.
    [[nodiscard]] const WorkerAnswer &answer() const { return m_answer; }

private:
    [[nodiscard]] State takeStarted(QByteArrayView message);
    [[nodiscard]] State takeProgress(QByteArrayView message);
    [[nodiscard]] State takeHeader(QByteArrayView message);
    [[nodiscard]] State takeChunk(QByteArrayView bytes);
    [[nodiscard]] qsizetype missingBytes() const;
    [[nodiscard]] State finish();
    [[nodiscard]] std::optional<WorkerAnswer> checkedAnswer() const;

    WorkerJob m_job;
    State m_state = State::Going;
    std::optional<SandboxLayers> m_layers;
    int m_progressMessages = 0;
    std::optional<AnswerHeader> m_header;
    QByteArray m_bytes; // the metadata and the content, as far as they have come
    WorkerAnswer m_answer;
};

} // namespace Varlo
