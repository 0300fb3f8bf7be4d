// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/Reading.h"

namespace Varlo {

/// The title as it stands in the document: the markup's, the heading's, else its first words.
[[nodiscard]] std::optional<QString> findTitle(const Reading &reading);
/// What a letter is about, by its label ("Re:", "Betreft:", "Asunto:").
[[nodiscard]] std::optional<QString> findSubject(const Reading &reading);

} // namespace Varlo
