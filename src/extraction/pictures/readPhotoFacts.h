// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <optional>
#include <QByteArrayView>
#include <QString>

namespace Varlo {

/// What the camera wrote into the file, as it stands there.
struct PhotoFacts {
    std::optional<QString> captureDate; ///< EXIF's DateTimeOriginal; nothing is promised of its form
    QString make; ///< trimmed; empty where unknown
    QString model; ///< likewise
    int orientation = 1; ///< EXIF's: 1 is upright, 2 to 8 are the other ways to turn and mirror it
};

/// Reads EXIF from JPEG, PNG, WebP, TIFF, HEIF and AVIF. From anything else, and from damaged EXIF, come no facts.
[[nodiscard]] PhotoFacts readPhotoFacts(const FileDescriptor &file);
[[nodiscard]] PhotoFacts readPhotoFacts(QByteArrayView fileContent);

} // namespace Varlo
