// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/renameWithFinder.h"

#include "platform/pathExtension.h"
#include "renaming/buildFinderRenameScript.h"
#include "suggestion/sanitizeFilename.h"
#include <QStringDecoder>

namespace Varlo {

static std::optional<QString> utf8Text(const std::string &bytes)
{
    // A name may start with U+FEFF, which the decoder would take for a byte order mark and drop.
    QStringDecoder decoder(
        QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

static FinderRenameError renameError(const AutomationHost::ScriptError &error)
{
    if (error.number == AutomationHost::eventNotPermitted || error.number == AutomationHost::consentNeeded)
        return AutomationDenied {};
    return error.message ? FinderFailed { *error.message } : finderFailedWithoutMessage();
}

Result<std::filesystem::path, FinderRenameError> renameWithFinder(
    AutomationHost &host, const std::filesystem::path &path, const QString &newName)
{
    const QString name = sanitizeFilename(newName);
    if (name.isEmpty())
        return tl::unexpected(RenameError::InvalidName);
    const std::optional<QString> posixPath = utf8Text(path.native());
    const std::optional<QString> extension = utf8Text(pathExtension(path));
    if (!posixPath || !extension)
        return tl::unexpected(finderFailedWithoutMessage());
    const std::unique_ptr<AutomationHost::Script> script
        = host.compile(buildFinderRenameScript(*posixPath, name, *extension));
    if (!script)
        return tl::unexpected(finderFailedWithoutMessage());

    const Result<std::optional<QString>, AutomationHost::ScriptError> result = host.execute(*script);
    if (!result)
        return tl::unexpected(renameError(result.error()));
    if (const std::optional<QString> &renamed = *result; renamed && !renamed->isEmpty())
        return renamed->toStdString();
    const QString ending = extension->isEmpty() ? QString() : u'.' + *extension;
    return path.parent_path() / (name + ending).toStdString();
}

} // namespace Varlo
