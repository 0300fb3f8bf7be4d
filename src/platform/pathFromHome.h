// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>

namespace Varlo {

/// A path's text with "~" for the user's home folder.
[[nodiscard]] inline QString pathFromHome(const QString &path)
{
    const QString home = QDir::homePath();
    const bool isBelow = path.startsWith(home + QLatin1Char('/'));
    return path == home || isBelow ? QLatin1Char('~') + path.mid(home.size()) : path;
}

} // namespace Varlo
