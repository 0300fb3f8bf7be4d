// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/OwnFolders.h"

#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

OwnFolders OwnFolders::find()
{
    QString programs = QCoreApplication::applicationDirPath();
    const QString buildTree = QStringLiteral(VARLO_BUILD_TREE);
    if (programs.startsWith(buildTree + u'/') || programs == buildTree)
        return { QStringLiteral(VARLO_BUILT_MODULE_FOLDER), QStringLiteral(VARLO_BUILT_HELPER_FOLDER) };
    if (programs.endsWith(QStringLiteral("/" VARLO_HELPER_FOLDER_END)))
        programs += QStringLiteral("/" VARLO_PROGRAMS_FROM_HELPERS);
    return { programs + QStringLiteral("/" VARLO_MODULES_FROM_PROGRAMS),
        programs + QStringLiteral("/" VARLO_HELPERS_FROM_PROGRAMS) };
}

} // namespace Varlo
