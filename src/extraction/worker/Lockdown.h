// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/SandboxLayers.h"
#include "platform/FileDescriptor.h"
#include <filesystem>
#include <linux/filter.h>
#include <vector>

namespace Varlo {

/// Locks a process in for good, so that a file that takes its reader over gains nothing: it can open nothing of the
/// user's, write nothing, start nothing, connect nowhere, and use no more than its share of memory and time. What it
/// has is what was open before.
///
/// Each layer stands alone, as not every kernel has every one; together they overlap on purpose. Made once, in the
/// starter, since making takes longer than applying.
class Lockdown {
public:
    enum class Threads { None, Allowed };

    /// Beside the system's libraries, fonts and models, these folders can be read.
    explicit Lockdown(const std::vector<std::filesystem::path> &readableFolders = {});

    /// Every layer that the kernel has. The starter is the process to die with.
    SandboxLayers lockIn(Threads threads, pid_t starter) const;

    // The layers, in the order in which they are put on.
    static void limitResources(Threads threads);
    static void hideFromOthers(pid_t starter);
    /// Landlock: which files can be opened, no TCP, no signals outside. Returns its version, or 0 without it.
    [[nodiscard]] int keepFromFiles() const;
    /// seccomp: which calls are answered. False without it.
    [[nodiscard]] bool filterCalls(Threads threads) const;

private:
    FileDescriptor m_landlockRules;
    int m_landlockVersion = 0;
    std::vector<sock_filter> m_filter;
    std::vector<sock_filter> m_filterWithThreads;
};

} // namespace Varlo
