// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/Preferences.h"

class QWindow;

namespace Varlo {

/// Gives the window the size that it had the last time, or less on a smaller screen, and stores each size that its user
/// gives it. The preferences outlive the window.
void rememberWindowSize(QWindow &window, Preferences &preferences);

} // namespace Varlo
