// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QList>
#include <QString>
#include <set>
#include <string_view>
#include <vector>

namespace Varlo {

// Lower-case extensions without ".", by the kind of reader; an extension is in one list only. Compare them with
// lowerCaseExtension().
inline constexpr std::array<std::string_view, 15> textExtensions { "txt", "md", "csv", "tsv", "log", "json", "xml",
    "html", "htm", "yaml", "yml", "svg", "srt", "vtt", "eml" };
inline constexpr std::array<std::string_view, 2> pdfExtensions { "pdf", "ai" };
inline constexpr std::array<std::string_view, 17> imageExtensions { "jpg", "jpeg", "jpe", "png", "webp", "gif", "heic",
    "heif", "heics", "tiff", "tif", "bmp", "avif", "tga", "exr", "ico", "icns" };
inline constexpr std::array<std::string_view, 4> officeExtensions { "docx", "xlsx", "pptx", "rtf" };

/// The four lists together.
[[nodiscard]] const std::set<std::string_view> &supportedExtensions();

/// How many extensions the user is told are supported: at least so many, in a round number ("35+ file types").
inline constexpr int statedExtensionCount
    = (textExtensions.size() + pdfExtensions.size() + imageExtensions.size() + officeExtensions.size()) / 5 * 5;

/// One section of the list of formats that is shown to the user.
struct FormatSection {
    QString title; ///< in the language of the interface
    std::vector<std::string_view> extensions; ///< in ascending order
    bool isComingSoon = false; ///< listed as a promise; no reader takes these
};
/// In the order in which they are shown.
[[nodiscard]] QList<FormatSection> formatSections();

} // namespace Varlo
