// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/SandboxLayers.h"
#include "extraction/isolation/WorkerAnswer.h"
#include "platform/FileDescriptor.h"
#include <QByteArrayView>
#include <QElapsedTimer>

namespace Varlo {

/// The worker's end of its answer socket. Where nobody listens any more, the process is killed by SIGPIPE.
class AnswerWriter {
public:
    /// The socket outlives the writer.
    explicit AnswerWriter(const FileDescriptor &socket)
        : m_socket(socket)
    {
    }
    void writeStarted(const SandboxLayers &layers);
    /// May be called as often as one likes: ten of them a second are passed on.
    void writeProgress();
    /// The last thing to say.
    void write(const WorkerAnswer &answer);

private:
    template <typename Message> void writeMessage(const Message &message);
    void writeBytes(QByteArrayView bytes);
    void writeContent(const FileContent &content);

    const FileDescriptor &m_socket;
    QElapsedTimer m_sinceProgress;
};

} // namespace Varlo
