// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <QStringList>

namespace Varlo {

/// Adds the tags that the file lacks behind those it has, which stay as they are. Tags are told apart by their exact
/// bytes. They stand in the extended attribute "user.xdg.tags" (freedesktop.org, Common Extended Attributes): UTF-8,
/// joined by ",". Never fails: where a file cannot have tags it stays without. A link's target is not touched.
void applyFinderTags(const QStringList &tags, const std::filesystem::path &path);

} // namespace Varlo
