// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/loadModule.h"

#include "platform/linux/OwnFolders.h"
#include <QLibrary>

namespace Varlo {

using namespace Qt::StringLiterals;

QFunctionPointer loadModule(QLatin1StringView name, const char *entryName)
{
    QLibrary library(OwnFolders::find().modules + u'/' + name + u".so"_s);
    library.setLoadHints(QLibrary::PreventUnloadHint); // threads and types of its libraries outlive any unloading
    return library.resolve(entryName);
}

} // namespace Varlo
