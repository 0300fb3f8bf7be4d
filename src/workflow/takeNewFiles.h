// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workflow/RenamerViewModel.h"
#include <filesystem>
#include <QCoroTask>
#include <QPointer>
#include <vector>

namespace Varlo {

/// Puts the files that a watcher reported into the batch and has names suggested; does nothing where the batch has all
/// of them. Ends with the suggestion run, or at once where one is under way, which then takes these files too.
QCoro::Task<void> takeNewFiles(QPointer<RenamerViewModel> batch, std::vector<std::filesystem::path> files);

} // namespace Varlo
