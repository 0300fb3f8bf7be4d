// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

Window {
    width: 1080
    height: 720
}
