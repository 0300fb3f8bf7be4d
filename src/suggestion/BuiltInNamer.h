// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/NameSuggestionService.h"

namespace Varlo {

/// The name that fixed rules find in the content: the same content always gets the same name. It has at most 80
/// user-perceived characters and says nothing that does not stand in the content. A picture is named from its metadata
/// alone. Nothing when the rules find nothing to name it from. Pure; safe on any thread.
[[nodiscard]] std::optional<NameSuggestion> nameFromContent(const SuggestionRequest &request);

/// Names files without a model: no key, no network, no clock. It answers at once; its only error is NoReadableContent.
class BuiltInNamer final : public NameSuggestionService {
public:
    [[nodiscard]] QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(
        SuggestionRequest request) override;
};

} // namespace Varlo
