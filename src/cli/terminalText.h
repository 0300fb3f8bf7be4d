// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <QString>

namespace Varlo {

/// The text with everything that a terminal would act on or hide written out, as `ls` does: "\n" for a line break,
/// "\033" for ESC, "\u202e" for a character that turns the direction of writing. Joiners between letters and emoji
/// stay.
[[nodiscard]] QString terminalText(QStringView text);
/// Bytes that are not UTF-8 come out in octal, as "\377".
[[nodiscard]] QString terminalText(const std::filesystem::path &path);

/// A message from elsewhere, which may be of any length: its first 500 characters, safe to print.
[[nodiscard]] QString terminalMessage(const QString &message);

/// The text cut in its middle, with "…" there, so that it takes at most `columns` columns of a terminal. Both ends of a
/// file name matter: one tells the document, the other the kind.
[[nodiscard]] QString elidedInMiddle(const QString &text, int columns);

} // namespace Varlo
