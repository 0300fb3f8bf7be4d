// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <optional>
#include <QByteArray>

namespace Varlo {

/// The first page of a PDF for a quick look: a JPEG in colour whose longer side has `longestSide` pixels (at most
/// 6000), fewer where the page is so small that it would be drawn at more than 300 pixels an inch. Nothing for a file
/// that cannot be opened, needs a password, or has no page.
[[nodiscard]] std::optional<QByteArray> renderFirstPage(const FileDescriptor &file, int longestSide);

} // namespace Varlo
