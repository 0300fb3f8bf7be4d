// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import Varlo

BaseButton {
    isFilled: true
}
