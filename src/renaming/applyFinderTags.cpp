// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/applyFinderTags.h"

#include <optional>
#include <QByteArray>
#include <QList>
#include <sys/xattr.h>

namespace Varlo {

static constexpr auto attribute = "user.xdg.tags";

/// Empty for a file without tags; nothing when what is there could not be read whole, and so must not be replaced.
static std::optional<QByteArray> currentTags(const std::filesystem::path &path)
{
    constexpr qsizetype longestAttribute = 65536; // the kernel's limit
    QByteArray value(longestAttribute, Qt::Uninitialized);
    const ssize_t length = ::lgetxattr(path.c_str(), attribute, value.data(), static_cast<size_t>(value.size()));
    if (length < 0 && errno != ENODATA)
        return std::nullopt;
    value.truncate(std::max<ssize_t>(length, 0));
    return value;
}

void applyFinderTags(const QStringList &tags, const std::filesystem::path &path)
{
    if (tags.isEmpty())
        return;
    const std::optional<QByteArray> current = currentTags(path);
    if (!current)
        return;
    const QList<QByteArray> existing = current->split(',');
    QByteArray merged = *current;
    for (const QString &tag : tags) {
        const QByteArray bytes = tag.toUtf8();
        if (bytes.isEmpty() || existing.contains(bytes))
            continue;
        if (!merged.isEmpty() && !merged.endsWith(','))
            merged += ',';
        merged += bytes;
    }
    if (merged != *current)
        ::lsetxattr(path.c_str(), attribute, merged.constData(), static_cast<size_t>(merged.size()), 0);
}

} // namespace Varlo
