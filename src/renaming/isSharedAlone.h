// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace Varlo {

/// True for what the desktop's document portal shows to a sandboxed program without the folder around it: the folder
/// that it seems to be in, `/run/user/1000/doc/3fa91c2d`, is made up, and no other name can be given to anything there.
/// A file inside a shared folder has another part in between. Takes a standardized path.
/// (https://flatpak.github.io/xdg-desktop-portal/docs/documents-and-fuse.html)
[[nodiscard]] bool isSharedAlone(const std::filesystem::path &path);

} // namespace Varlo
