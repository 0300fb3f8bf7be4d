// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import Varlo

/// Confirms what cannot be taken back.
BaseButton {
    isFilled: true
    rest: Theme.bad
    hover: Theme.badHover
    press: Theme.badHover
}
