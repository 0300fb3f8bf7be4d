// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

ChipLine {
    required property FileRow row

    tags: row.suggestedTags
}
