// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/Result.h"
#include "suggestion/NameSuggestion.h"
#include "suggestion/NameSuggestionError.h"
#include "templates/FilenameLanguage.h"
#include "templates/NameTemplate.h"
#include <optional>
#include <QCoroTask>
#include <QString>

namespace Varlo {

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
