// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "suggestion/NameSuggestionError.h"
#include <QByteArray>

namespace Varlo {

/// Takes the model's text out of an HTTP answer of the Messages interface: the first block of type "text". Pure.
/// Errors: ApiError with the endpoint's own message, or "HTTP N", for every status but 200; TransportError for a body
/// of another shape, where any block counts, also one behind the text; InvalidResponse for a body without text.
[[nodiscard]] Result<QString, NameSuggestionError> decodeReply(int httpStatus, const QByteArray &body);

} // namespace Varlo
