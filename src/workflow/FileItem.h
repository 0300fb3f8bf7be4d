// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CompactPath.h"
#include "platform/FileIdentity.h"
#include "platform/Message.h"
#include <deque>
#include <filesystem>
#include <optional>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <variant>

namespace Varlo {

/// One file of the batch.
struct FileItem {
    struct Pending { ///< waits for a suggestion run
        bool operator==(const Pending &) const = default;
    };
    struct Processing { ///< its suggestion is being made
        bool operator==(const Processing &) const = default;
    };
    struct Suggested { ///< a name has arrived
        bool operator==(const Suggested &) const = default;
    };
    struct Renamed { ///< renamed on disk by this batch
        bool operator==(const Renamed &) const = default;
    };
    struct AlreadyRenamed { ///< the rename log says that Varlo gave this file its name earlier
        bool operator==(const AlreadyRenamed &) const = default;
    };
    struct NoTextFound { ///< nothing in it to name it from
        bool operator==(const NoTextFound &) const = default;
    };
    struct NotSupportedYet { ///< no reader takes this type
        bool operator==(const NotSupportedYet &) const = default;
    };
    struct Failed { ///< a suggestion or a rename failed
        Message message; ///< why
        bool isForWantOfKey = false; ///< another API key may bring the name

        bool operator==(const Failed &) const = default;
    };
    using Status
        = std::variant<Pending, Processing, Suggested, Renamed, AlreadyRenamed, NoTextFound, NotSupportedYet, Failed>;

    QUuid id; ///< made when the item is added; never changes
    CompactPath path; ///< standardized; where the file is now
    Status status;
    QString suggestedName; ///< without extension; the user may edit it; "" while there is none
    QStringList suggestedTags;
    std::optional<QString> previousName; ///< the last path component before Varlo renamed it
    qint64 byteSize = 0; ///< as it was when added; 0 where it could not be read
    std::optional<FileIdentity> identity; ///< as it was when added: a rename takes no other file for it
};

/// In the order of admission. A growing deque moves none of its items, which a vector of 100,000 does again and again.
using FileItems = std::deque<FileItem>;

/// The word that the window shows for a status.
[[nodiscard]] QString label(const FileItem::Status &status);
/// The word that scripts read: pending, processing, suggested, renamed, alreadyRenamed, noTextFound, notSupportedYet,
/// failed.
[[nodiscard]] QString rawValue(const FileItem::Status &status);
/// "photo", "doc.text", "doc.richtext", "doc.plaintext" or "doc", by the file's extension.
[[nodiscard]] QString iconName(const FileItem &item);

} // namespace Varlo
