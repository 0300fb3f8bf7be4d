// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenameFailure.h"

#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

static Message words(const char *text) { return { "RenameFailure", text }; }

static Message description(RenameError error)
{
    switch (error) {
    case RenameError::InvalidName:
        //: Error when a (possibly user-edited) filename is empty or illegal
        return words(QT_TRANSLATE_NOOP("RenameFailure", "Not a valid file name."));
    case RenameError::TooManyConflicts:
        //: Error when no free conflict-numbered filename is available
        return words(QT_TRANSLATE_NOOP("RenameFailure", "Too many files with this name."));
    }
    Q_UNREACHABLE();
}

static Message description(const HistoryNotWritable &failure)
{
    if (failure.cause.code == EAGAIN) {
        //: Error when another running copy of the program did not let this one rename for five seconds
        return words(QT_TRANSLATE_NOOP("RenameFailure", "Another Varlo is renaming files. Try again in a moment."));
    }
    //: Error when a rename could not be noted down before it; %1 is the system's reason
    return { "RenameFailure",
        QT_TRANSLATE_NOOP("RenameFailure", "Nothing was renamed, because the history could not be written: %1"),
        { failure.cause.description() } };
}

Message description(const RenameFailure &failure)
{
    return std::visit(
        Overloaded {
            [](RenameError error) { return description(error); },
            [](FileChanged) {
                //: Error when another file stands under the name of the one that was added to the list
                return words(QT_TRANSLATE_NOOP("RenameFailure", "The file is not the one that was added any more."));
            },
            [](SharedAlone) {
                //: Error inside a sandbox, where a file was chosen but not the folder that it is in
                return words(QT_TRANSLATE_NOOP(
                    "RenameFailure", "Varlo was given this file without its folder. Add the folder instead."));
            },
            [](const HistoryNotWritable &refusal) { return description(refusal); },
            [](const SystemError &error) { return Message(error.description()); },
        },
        failure);
}

bool isPermissionDenied(const RenameFailure &failure)
{
    const auto *error = std::get_if<SystemError>(&failure);
    return error && error->isPermissionDenied();
}

} // namespace Varlo
