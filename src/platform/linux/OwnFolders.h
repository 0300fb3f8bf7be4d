// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Varlo {

/// Where the parts of Varlo are that nobody starts or loads by hand.
struct OwnFolders {
    QString modules; ///< what is loaded at run time
    QString helpers; ///< programs that are started by Varlo only

    /// Beside the running program as it was installed or, for a program of the build tree, where the build puts them. A
    /// program outside the build tree never looks there: somebody else may own that path by then. Takes a
    /// QCoreApplication.
    [[nodiscard]] static OwnFolders find();
};

} // namespace Varlo
