// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/readPhotoFacts.h"
#include "platform/FileDescriptor.h"
#include <optional>
#include <QString>

namespace Varlo {

/// What the model is told beside a picture: a header and at most two lines, the date (when the photo was taken or,
/// failing that, the file's own) and the camera. Absent where neither is known.
[[nodiscard]] std::optional<QString> photoMetadataBlock(
    const PhotoFacts &facts, const std::optional<QString> &fileDate);

/// EXIF's "2023:12:24 18:03:11" as "2023-12-24". Only the form is looked at: the zeros of a camera whose clock was
/// never set become "0000-00-00". Absent where the form is another.
[[nodiscard]] std::optional<QString> exifDateString(const QString &date);

/// Make and model in one, where the model does not name the make itself: "SONY ILCE-7M3", "Canon EOS R5". Both are
/// given trimmed. Absent where both are empty, and where they are far too long to be a camera's name.
[[nodiscard]] std::optional<QString> cameraDescription(const QString &make, const QString &model);

/// The day on which the file was made, as YYYY-MM-DD in the local time zone: its birth or, where the file system does
/// not keep that, its last modification.
[[nodiscard]] std::optional<QString> fileCreationDateString(const FileDescriptor &file);

} // namespace Varlo
