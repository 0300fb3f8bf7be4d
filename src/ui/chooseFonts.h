// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Varlo {

/// Sets the fonts that the window is drawn for, each with what stands in where it is not installed.
/// Begins to read those of the system, on a thread.
void chooseFonts();

} // namespace Varlo
