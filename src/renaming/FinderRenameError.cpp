// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FinderRenameError.h"

#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

FinderFailed finderFailedWithoutMessage()
{
    //: Fallback error when the Finder rename script fails without a message
    return { QCoreApplication::translate("FinderRenameError", "Finder could not rename the file.") };
}

QString description(const FinderRenameError &error)
{
    return std::visit(Overloaded {
                          [](const FinderFailed &failure) { return failure.message; },
                          [](AutomationDenied) {
                              //: Error when the Finder-control (Automation) permission is missing
                              return QCoreApplication::translate("FinderRenameError",
                                  "Allow Varlo to control Finder to rename here (Settings ▸ Folders).");
                          },
                          [](RenameError failure) { return description(RenameFailure(failure)); },
                      },
        error);
}

} // namespace Varlo
