// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/Result.h"
#include "suggestion/NameSuggestionError.h"
#include "templates/FilenameLanguage.h"
#include "templates/NameTemplate.h"
#include <optional>
#include <QCoroTask>
#include <QString>
#include <QStringList>

namespace Varlo {

/// A name for a file, and words to find it by.
struct NameSuggestion {
    QString name; ///< clean, without extension, never empty
    QStringList tags; ///< at most five, lower case; empty when none were asked for

    bool operator==(const NameSuggestion &) const = default;
};

struct SuggestionRequest {
    FileContent content;
    QString existingName; ///< the file's present name, without its extension
    FilenameLanguage language = FilenameLanguage::Auto;
    std::optional<NameTemplate> nameTemplate; ///< absent: the namer picks the structure
    bool includeTags = false;
};

/// Whoever can think of a name for a file's content.
struct NameSuggestionService {
    virtual ~NameSuggestionService() = default;
    [[nodiscard]] virtual QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(
        SuggestionRequest request)
        = 0;
};

} // namespace Varlo
