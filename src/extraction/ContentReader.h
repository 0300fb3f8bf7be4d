// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include <filesystem>
#include <QCoroTask>

namespace Varlo {

/// Reads files somewhere else than on the caller's thread.
struct ContentReader {
    virtual ~ContentReader() = default;
    /// Always ends: every failure is a case of the outcome. Several may be awaited at once.
    [[nodiscard]] virtual QCoro::Task<Extraction> read(std::filesystem::path path) = 0;
};

} // namespace Varlo
