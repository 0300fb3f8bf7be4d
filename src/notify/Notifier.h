// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/Notification.h"
#include "notify/SuggestedFile.h"
#include <functional>
#include <vector>

namespace Varlo {

/// One notification on the desktop: the next takes its place, unless the user has closed it by then. Lives on the main
/// thread and calls back from the event loop.
class Notifier {
public:
    Notifier() = default;
    Notifier(const Notifier &) = delete;
    Notifier &operator=(const Notifier &) = delete;
    virtual ~Notifier() = default;

    virtual void show(const Notification &notification) = 0;
    /// Takes the notification away; `whenGone` follows where there was one.
    virtual void close() = 0;
    /// Opens the window with these files and their names in its list, in the running one if there is any, and brings it
    /// to the front where an action of the notification led here.
    virtual void openWindow(const std::vector<SuggestedFile> &files) = 0;

    /// The user chose the action with this id; most desktops close the notification then.
    std::function<void(const QString &actionId)> whenChosen = [](const QString &) {};
    /// The desktop has it.
    std::function<void()> whenShown = [] {};
    /// It was closed, went by itself, or could not be shown.
    std::function<void()> whenGone = [] {};
};

} // namespace Varlo
