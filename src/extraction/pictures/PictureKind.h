// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArrayView>
#include <string_view>

namespace Varlo {

enum class PictureKind { JPEG, PNG, GIF, BMP, ICO, ICNS, EXR, TGA, WebP, TIFF, HEIF };

/// So many bytes from the front of a file tell its kind.
inline constexpr qsizetype pictureKindBytes = 32;

/// The kind by content, since pictures often bear another kind's extension. The extension ("tga", in lower case)
/// counts for TGA alone, which nothing in the file gives away. HEIF stands for AVIF too.
[[nodiscard]] std::optional<PictureKind> pictureKind(QByteArrayView firstBytes, std::string_view extension);

} // namespace Varlo
