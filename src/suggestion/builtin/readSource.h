// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>

namespace Varlo {

/// A file's text without its markup, and what the markup said.
struct Source {
    QString text; ///< one line; "|" stands where markup parted two pieces
    std::optional<QString> title; ///< of the page, the front matter, the object
    std::optional<QString> sender, subject, date; ///< of an e-mail
    bool isEmail = false;
    bool isTable = false; ///< its title is its column names and its dates are those of its rows
    bool isSubtitles = false;
};

/// Tells e-mail, HTML, XML, JSON, Markdown, tables and subtitles from plain text and takes them apart. The text is one
/// line already and may be cut anywhere, so nothing here needs to be well-formed.
[[nodiscard]] Source readSource(const QString &text);

} // namespace Varlo
