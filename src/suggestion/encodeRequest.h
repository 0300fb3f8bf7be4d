// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/NameSuggestionService.h"

namespace Varlo {

/// The body of a request to the Messages interface, as compact JSON: one message of the user's that holds the prompt,
/// behind the picture where there is one. Pure; a picture takes some milliseconds, so it belongs off the main thread.
[[nodiscard]] QByteArray encodeRequest(const QString &model, const SuggestionRequest &request);

} // namespace Varlo
