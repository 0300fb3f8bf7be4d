// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureKind.h"
#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"
#include <QStringList>

namespace Varlo {

/// Loads the plugins of Qt that decodeWithQt() takes, which it would otherwise do itself, and no others. Tells for
/// which formats there is none, by extension.
[[nodiscard]] QStringList loadQtFormats();

/// Decodes GIF, BMP, ICO and ICNS with Qt's reader for that kind and no other: the first picture of the file. Moves the
/// descriptor's offset. False where nothing can be decoded.
[[nodiscard]] bool decodeWithQt(const FileDescriptor &file, PictureKind kind, PictureRows &rows);

} // namespace Varlo
