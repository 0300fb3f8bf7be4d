// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FinderRenameError.h"

#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

FinderFailed finderFailedWithoutMessage()
{
    //: Fallback error when the Finder rename script fails without a message
    return { { "FinderRenameError", QT_TRANSLATE_NOOP("FinderRenameError", "Finder could not rename the file.") } };
}

Message description(const FinderRenameError &error)
{
    return std::visit(Overloaded {
                          [](const FinderFailed &failure) { return failure.message; },
                          [](AutomationDenied) {
                              //: Error when the Finder-control (Automation) permission is missing
                              return Message("FinderRenameError",
                                  QT_TRANSLATE_NOOP("FinderRenameError",
                                      "Allow Varlo to control Finder to rename here (Settings ▸ Folders)."));
                          },
                          [](RenameError failure) { return description(RenameFailure(failure)); },
                      },
        error);
}

} // namespace Varlo
