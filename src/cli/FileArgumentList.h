// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "cli/Terminal.h"
#include <filesystem>
#include <QJsonObject>
#include <vector>

namespace Varlo {

/// An argument that names no file or folder that Varlo could take, and why.
struct RefusedArgument {
    std::filesystem::path path;
    QString message;
};

/// The paths that a command was given, looked at once: standardized where they are there.
struct FileArgumentList {
    std::vector<std::filesystem::path> paths;
    std::vector<RefusedArgument> refused;
};

/// Takes the arguments and, where asked for, the NUL-ended paths of a file or of standard input. `supportedOnly`
/// refuses a single file whose type is not read.
[[nodiscard]] FileArgumentList lookAt(const FileArguments &arguments, bool supportedOnly);

/// The path absolute and without "." and "..". Where it has "..", the folder is resolved through its links first, since
/// "link/.." is not the folder that the link is in.
[[nodiscard]] std::filesystem::path resolvedArgument(const std::filesystem::path &path);

/// "path", and "pathBytes" (base64) where the bytes are not UTF-8.
void insertPath(QJsonObject &object, const QString &key, const std::filesystem::path &path);

/// The path as a person would write it from here: relative below the working directory, absolute elsewhere. Safe to
/// print.
[[nodiscard]] QString pathFromHere(const std::filesystem::path &path);

} // namespace Varlo
