// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Varlo {

// A file's name in two parts, as bytes: names need not be UTF-8. A name is always its base, and, where the extension is
// not empty, "." and the extension. Pure; no file is looked at.

/// What stands behind the last "." of the last component. "" where there is no ".", where the name has nothing behind
/// its last one ("notes.") or nothing before its only one (".profile").
[[nodiscard]] std::string pathExtension(const std::filesystem::path &path);
[[nodiscard]] std::string pathExtension(std::string_view path);
/// The extension with A to Z made small, to be compared with lists; all other bytes stay, whatever the locale.
[[nodiscard]] std::string lowerCaseExtension(const std::filesystem::path &path);
[[nodiscard]] std::string lowerCaseExtension(std::string_view path);
/// The last component without its extension.
[[nodiscard]] std::string baseName(const std::filesystem::path &path);
[[nodiscard]] std::string baseName(std::string_view path);

} // namespace Varlo
