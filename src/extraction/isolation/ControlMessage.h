// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/WorkerJob.h"
#include "platform/FileDescriptor.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include <optional>
#include <QtGlobal>
#include <vector>

namespace Varlo {

/// What is said to the starter, one message each, over a socket of type SOCK_SEQPACKET that it finds as descriptor 3.
/// It answers nothing but Confirm; that it is gone shows in the socket's end.
struct ControlMessage {
    enum class Action {
        Start, ///< a worker for `job`; comes with the worker's end of its answer socket and, unless inspecting, the
               ///< file
        Stop, ///< whatever is left of that worker
        Confirm, ///< that nothing is left of it, which is then stopped; the answer is the same message
    };

    Action action = Action::Start;
    quint32 id = 0; ///< of the worker, for both
    WorkerJob job;
};
inline constexpr int controlDescriptor = 3;

struct ReceivedControlMessage {
    ControlMessage message;
    std::vector<FileDescriptor> descriptors; ///< the answer socket and the file
};

/// Never waits: a starter that does not take its messages is as good as gone.
[[nodiscard]] Result<void, SystemError> sendControlMessage(
    const FileDescriptor &socket, const ControlMessage &message, const std::vector<int> &descriptors);

/// Waits for a message. Nothing where the other side is gone, or speaks another version's language.
[[nodiscard]] std::optional<ReceivedControlMessage> receiveControlMessage(const FileDescriptor &socket);

} // namespace Varlo
