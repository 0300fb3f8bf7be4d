// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/watchFolderPath.h"

#include "platform/shownPath.h"

namespace Varlo {

std::filesystem::path watchFolderPath(const Preferences &preferences)
{
    const QString text = preferences.string(Preference::watchFolderPath);
    const std::filesystem::path bytes = preferences.data(Preference::watchFolderPathBytes).toStdString();
    return !bytes.empty() && shownPath(bytes) == text ? bytes : std::filesystem::path(text.toStdString());
}

Result<void, SystemError> setWatchFolderPath(Preferences &preferences, const std::filesystem::path &folder)
{
    const QByteArray bytes = QByteArray::fromStdString(folder.native());
    // The bytes first: until the text follows they do not belong to it and do not count.
    if (const auto stored
        = preferences.set(Preference::watchFolderPathBytes, bytes.isValidUtf8() ? QByteArray() : bytes);
        !stored)
        return stored;
    return preferences.set(Preference::watchFolderPath, shownPath(folder));
}

} // namespace Varlo
