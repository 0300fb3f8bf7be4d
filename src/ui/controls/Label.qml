// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Words that are read aloud.
Words {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
