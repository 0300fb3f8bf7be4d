// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/FilenameLanguage.h"
#include "templates/NameTemplate.h"
#include <optional>
#include <QString>

namespace Varlo {

/// Everything the model is told about one file, in one text; lines end with a line feed, the last one with nothing.
/// `contentText` is absent for a picture, which travels beside the prompt; `metadata` describes a picture and is left
/// out where empty. Values go in unescaped. Pure; safe on any thread.
[[nodiscard]] QString buildPrompt(const QString &existingName, FilenameLanguage language,
    const std::optional<QString> &contentText, const std::optional<NameTemplate> &nameTemplate,
    const std::optional<QString> &metadata, bool includeTags);

} // namespace Varlo
