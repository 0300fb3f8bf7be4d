// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FileArgumentList.h"

#include "extraction/supportedExtensions.h"
#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include "platform/SystemError.h"
#include "platform/visibleText.h"
#include <algorithm>
#include <fstream>
#include <iostream>
#include <QCoreApplication>
#include <QStringDecoder>
#include <sys/stat.h>

namespace Varlo {

using namespace Qt::StringLiterals;

std::filesystem::path resolvedArgument(const std::filesystem::path &path)
{
    if (std::ranges::find(path, std::filesystem::path("..")) == path.end())
        return standardizedPath(path);
    std::error_code error;
    const bool endsInFolder = path.filename() == ".." || path.filename() == "." || !path.has_filename();
    const std::filesystem::path folder
        = std::filesystem::weakly_canonical(endsInFolder ? path : std::filesystem::absolute(path).parent_path(), error);
    if (error)
        return standardizedPath(path);
    return standardizedPath(endsInFolder ? folder : folder / path.filename());
}

static std::vector<std::filesystem::path> readNulEnded(std::istream &stream)
{
    std::vector<std::filesystem::path> paths;
    for (std::string path; std::getline(stream, path, '\0');) {
        if (!path.empty())
            paths.emplace_back(std::move(path));
    }
    return paths;
}

static void look(const std::filesystem::path &path, bool supportedOnly, FileArgumentList &list)
{
    const std::filesystem::path resolved = resolvedArgument(path);
    struct stat status { };
    if (path.empty() || ::stat(resolved.c_str(), &status) != 0) {
        list.refused.push_back({ resolved, SystemError { path.empty() ? ENOENT : errno }.description() });
        return;
    }
    const bool isRefusedType
        = supportedOnly && !S_ISDIR(status.st_mode) && !supportedExtensions().contains(lowerCaseExtension(resolved));
    if (isRefusedType) {
        list.refused.push_back(
            { resolved, QCoreApplication::translate("Terminal", "This type of file is not supported yet.") });
        return;
    }
    list.paths.push_back(resolved);
}

FileArgumentList lookAt(const FileArguments &arguments, bool supportedOnly)
{
    FileArgumentList list;
    for (const std::filesystem::path &path : arguments.files)
        look(path, supportedOnly, list);
    if (!arguments.files0From)
        return list;

    std::vector<std::filesystem::path> more;
    if (*arguments.files0From == "-") {
        more = readNulEnded(std::cin);
    } else {
        std::ifstream file(*arguments.files0From, std::ios::binary);
        more = readNulEnded(file);
        // A folder opens, but cannot be read.
        if (!file.is_open() || file.bad())
            list.refused.push_back({ *arguments.files0From, SystemError::latest().description() });
    }
    for (const std::filesystem::path &path : more)
        look(path, supportedOnly, list);
    return list;
}

void insertPath(QJsonObject &object, const QString &key, const std::filesystem::path &path)
{
    object.insert(key, shownPath(path));
    const QByteArray bytes = QByteArray::fromStdString(path.native());
    if (!bytes.isValidUtf8())
        object.insert(key + u"Bytes"_s, QString::fromLatin1(bytes.toBase64()));
}

QString pathFromHere(const std::filesystem::path &path)
{
    std::error_code error;
    const std::filesystem::path here = std::filesystem::current_path(error);
    const std::filesystem::path relative = path.lexically_relative(here);
    const bool isBelow = !error && !relative.empty() && *relative.begin() != "..";
    return visibleText(isBelow ? relative : path);
}

} // namespace Varlo
