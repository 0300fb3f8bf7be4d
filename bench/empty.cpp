// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A program that links Qt Core and does nothing: what starting costs anybody.
#include <QCoreApplication>

int main(int argumentCount, char **arguments)
{
    if (argumentCount > 1)
        QCoreApplication(argumentCount, arguments).processEvents();
    return 0;
}
