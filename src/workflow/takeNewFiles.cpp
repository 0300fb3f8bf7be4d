// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/takeNewFiles.h"

namespace Varlo {

QCoro::Task<void> takeNewFiles(QPointer<RenamerViewModel> batch, std::vector<std::filesystem::path> files)
{
    if (!batch)
        co_return;
    std::erase_if(files, [&batch](const std::filesystem::path &file) { return batch->contains(file); });
    if (files.empty())
        co_return;
    co_await batch->addFiles(std::move(files), false);
    if (batch)
        co_await batch->suggestAll();
}

} // namespace Varlo
