// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/loadModule.h"

#include <QCoreApplication>
#include <QLibrary>

namespace Varlo {

using namespace Qt::StringLiterals;

/// Beside the program as it was installed or, for a program of the build tree, where the build puts it. A program
/// outside the build tree never looks there: somebody else may own that path by then.
static QString moduleFolder()
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    const QString buildTree = QStringLiteral(VARLO_BUILD_TREE);
    if (programFolder.startsWith(buildTree + u'/') || programFolder == buildTree)
        return QStringLiteral(VARLO_BUILT_MODULE_FOLDER);
    return programFolder + QStringLiteral("/" VARLO_INSTALLED_MODULE_FOLDER);
}

QFunctionPointer loadModule(QLatin1StringView name, const char *entryName)
{
    QLibrary library(moduleFolder() + u'/' + name + u".so"_s);
    library.setLoadHints(QLibrary::PreventUnloadHint); // threads and types of its libraries outlive any unloading
    return library.resolve(entryName);
}

} // namespace Varlo
