// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Message.h"
#include <optional>
#include <QByteArray>
#include <QString>
#include <variant>

namespace Varlo {

struct TextContent {
    QString text; ///< one line of 20 to 8000 characters

    bool operator==(const TextContent &) const = default;
};
struct ImageContent {
    QByteArray data; ///< a JPEG; its longer side is at most 1568 pixels
    QString mimeType; ///< always "image/jpeg"
    std::optional<QString> metadata; ///< capture date and camera; absent when nothing is known

    bool operator==(const ImageContent &) const = default;
};
using FileContent = std::variant<TextContent, ImageContent>;

struct Unreadable {
    Message message; ///< why it could not be opened

    bool operator==(const Unreadable &) const = default;
};
/// Read, but nothing in it to name the file from.
struct NoTextFound {
    bool operator==(const NoTextFound &) const = default;
};
/// No reader takes this extension.
struct NotSupportedYet {
    bool operator==(const NotSupportedYet &) const = default;
};
/// What came of reading one file.
using Extraction = std::variant<FileContent, Unreadable, NoTextFound, NotSupportedYet>;

} // namespace Varlo
