// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <QString>

namespace Varlo {

/// The text with everything that a terminal or a line of text would act on or hide written out, as `ls` does: "\n" for
/// a line break, "\033" for ESC, "\u202e" for a character that turns the direction of writing. Joiners between letters
/// and emoji stay.
[[nodiscard]] QString visibleText(QStringView text);
/// Bytes that are not UTF-8 come out in octal, as "\377".
[[nodiscard]] QString visibleText(const std::filesystem::path &path);

/// A message from elsewhere, which may be of any length: its first 500 characters, safe to show.
[[nodiscard]] QString visibleMessage(const QString &message);

} // namespace Varlo
