// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Varlo {

/// What the kernel keeps a worker locked in with, by its own answers.
struct SandboxLayers {
    int landlockVersion = 0; ///< Landlock's ABI; 0 where files are not kept from it
    bool filtersCalls = false; ///< seccomp

    [[nodiscard]] bool isComplete() const { return landlockVersion > 0 && filtersCalls; }
    bool operator==(const SandboxLayers &) const = default;
};

} // namespace Varlo
