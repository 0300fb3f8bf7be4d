// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/NameSuggestionService.h"
#include <algorithm>
#include <deque>
#include <functional>
#include <QCoroSignal>
#include <QObject>
#include <vector>

namespace Varlo {

/// Suggests "new <name>" with the tag "tag" once it is let go; records what it was asked and how many waited at once.
class FakeNameSuggester final : public QObject, public NameSuggestionService {
    Q_OBJECT
public:
    std::vector<SuggestionRequest> requests;
    std::map<QString, NameSuggestionError> errors; ///< by existing name
    int waiting = 0;
    int mostWaiting = 0;
    bool isHeld = false;

    QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(SuggestionRequest request) override
    {
        requests.push_back(request);
        mostWaiting = std::max(mostWaiting, ++waiting);
        while (isHeld)
            co_await qCoro(this, &FakeNameSuggester::released);
        --waiting;
        const auto error = errors.find(request.existingName);
        if (error != errors.end())
            co_return tl::unexpected(error->second);
        const QStringList tags = request.includeTags ? QStringList { QStringLiteral("tag") } : QStringList {};
        co_return NameSuggestion { QStringLiteral("new ") + request.existingName, tags };
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
