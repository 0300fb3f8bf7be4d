// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/ContentReader.h"
#include <map>
#include <QCoroTimer>
#include <QTimer>

namespace Varlo {

/// Answers every file with its own name as text, from the event loop, unless told otherwise.
struct FakeContentReader final : ContentReader {
    std::map<std::filesystem::path, Extraction> extractions;

    QCoro::Task<Extraction> read(std::filesystem::path path) override
    {
        QTimer soon;
        soon.setSingleShot(true);
        soon.start(0);
        co_await soon;
        const auto told = extractions.find(path);
        if (told != extractions.end())
            co_return told->second;
        const FileContent content = TextContent { QString::fromStdString(path.native()) };
        co_return content;
    }
};

} // namespace Varlo
