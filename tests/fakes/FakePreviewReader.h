// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/PreviewReader.h"
#include <map>
#include <QCoroSignal>
#include <QObject>
#include <vector>

namespace Varlo {

/// Answers every file with its own name as text, unless told otherwise; records what it was asked for.
class FakePreviewReader final : public QObject, public PreviewReader {
    Q_OBJECT
public:
    std::map<std::filesystem::path, Preview> previews; ///< by file name
    std::vector<std::filesystem::path> asked;
    bool isHeld = false;

    QCoro::Task<Preview> preview(std::filesystem::path path, int) override
    {
        asked.push_back(path.filename());
        while (isHeld)
            co_await qCoro(this, &FakePreviewReader::released);
        const auto told = previews.find(path.filename());
        if (told != previews.end()) {
            Preview copy = told->second; // a member that is returned is moved from
            co_return copy;
        }
        const Preview text = TextPreview { QString::fromStdString(path.filename().native()) };
        co_return text;
    }

    void letGo()
    {
        isHeld = false;
        emit released();
    }

signals:
    void released();
};

} // namespace Varlo
