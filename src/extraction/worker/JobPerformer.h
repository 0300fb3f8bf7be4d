// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/WorkerAnswer.h"
#include "extraction/isolation/WorkerJob.h"
#include "platform/FileDescriptor.h"
#include <functional>
#include <string_view>

namespace Varlo {

/// Called each time that some more of a file is done.
using ReportProgress = std::function<void()>;

/// Does what a worker is for.
struct JobPerformer {
    virtual ~JobPerformer() = default;
    /// Names what prepare() loads for such a job; empty where that is nothing. One name always means the same.
    [[nodiscard]] virtual std::string_view libraries(const WorkerJob &job) const = 0;
    /// Loads in a starter, before the fork, what such a job takes: libraries, models. Looks at no file.
    virtual void prepare(const WorkerJob &job) = 0;
    /// Whether it takes a thread beside the worker's own.
    [[nodiscard]] virtual bool needsThreads(const WorkerJob &job) const = 0;
    /// In the worker. The file is absent where the job is to inspect.
    [[nodiscard]] virtual WorkerAnswer perform(
        const WorkerJob &job, const FileDescriptor &file, const ReportProgress &reportProgress)
        = 0;
};

} // namespace Varlo
