// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/buildFinderRenameScript.h"

namespace Varlo {

using namespace Qt::StringLiterals;

static QString assignment(const QString &variable, QString text)
{
    // Backslashes first: those that protect the quotes must not be doubled.
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u"set "_s + variable + u" to \""_s + text + u"\"\n"_s;
}

QString buildFinderRenameScript(const QString &path, const QString &cleanedName, const QString &extension)
{
    const QString renaming = uR"(tell application "Finder"
    set theItem to (POSIX file posixPath) as alias
    set theContainer to (container of theItem)
    set containerPath to POSIX path of (theContainer as alias)
    set currentName to (name of theItem) as text
    set counter to 0
    repeat
        set counter to counter + 1
        if counter is 1 then
            set candidate to theBase
        else
            set candidate to theBase & " " & counter
        end if
        if theExt is not "" then set candidate to candidate & "." & theExt
        if candidate is currentName then
            return posixPath
        end if
        if not (exists item candidate of theContainer) then
            set name of theItem to candidate
            return containerPath & candidate
        end if
        if counter > 99 then error "Too many files with this name."
    end repeat
end tell)"_s;
    return assignment(u"posixPath"_s, path) + assignment(u"theBase"_s, cleanedName) + assignment(u"theExt"_s, extension)
        + renaming;
}

} // namespace Varlo
