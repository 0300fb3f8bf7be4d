// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/FileReaders.h"
#include "extraction/worker/Starter.h"
#include "platform/linux/OwnFolders.h"
#include <ctime>
#include <QCoreApplication>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Varlo;

int main(int argumentCount, char **arguments)
{
#ifndef __SANITIZE_ADDRESS__ // whose reports look into the process
    ::prctl(PR_SET_DUMPABLE, 0);
#endif
    ::tzset(); // a worker cannot look it up
    const QCoreApplication application(argumentCount, arguments);
    QCoreApplication::setLibraryPaths({}); // what Qt reads by itself, it would first offer to every plugin there
    FileReaders readers;
    const Lockdown lockdown({ OwnFolders::find().modules.toStdString() });
    Starter(FileDescriptor(controlDescriptor), readers, lockdown).serve();
    ::_exit(0); // the workers die with it
}
