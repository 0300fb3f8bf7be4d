// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace Varlo {

/// What the desktop is to show.
struct Notification {
    struct Action {
        QString id; ///< "default" is what a click on the notification itself does; some desktops show no button for it
        QString label;
    };
    QString title;
    QString text; ///< plain, in lines; a name in it has to be safe to show
    QList<Action> actions; ///< left out where the desktop has no buttons
};

} // namespace Varlo
