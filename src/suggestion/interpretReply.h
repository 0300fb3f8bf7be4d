// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "suggestion/NameSuggestion.h"

namespace Varlo {

enum class ReplyError {
    NoReadableContent, ///< the model says that there is nothing to name the file from
    InvalidResponse, ///< the name is too long, or nothing is left of it once it is cleaned
};

/// Turns the model's free text into a name and at most five tags. Pure; safe on any thread.
/// Lengths count user-perceived characters (extended grapheme clusters, Unicode UAX #29), not code units.
/// A name of up to 90 is taken; a longer one is refused rather than cut, since half a title misleads.
/// The marker NO_CONTENT counts wherever it stands in the reply. Without `includeTags` a tags line is part of the name.
[[nodiscard]] Result<NameSuggestion, ReplyError> interpretReply(const QString &reply, bool includeTags);

/// The first five different tags of a comma-separated list, in lower case. Longer ones than 30 characters are skipped.
/// Nothing else about them is cleaned: a tag may hold spaces, punctuation and line breaks.
[[nodiscard]] QStringList parseTags(QStringView text);

} // namespace Varlo
