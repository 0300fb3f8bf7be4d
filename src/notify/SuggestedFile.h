// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileIdentity.h"
#include <filesystem>
#include <QString>
#include <QStringList>

namespace Varlo {

/// A file and the name that one Varlo hands to another, so that nobody is asked for a name twice.
struct SuggestedFile {
    std::filesystem::path path; ///< standardized
    FileIdentity identity; ///< of the file that was looked at; another one in its place gets no name from here
    QString name; ///< without extension
    QStringList tags;

    bool operator==(const SuggestedFile &) const = default;
};

} // namespace Varlo
