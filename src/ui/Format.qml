// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick

/// Figures as people read them in the interface's language.
QtObject {
    property string locale ///< changes with the interface's language

    function bytes(count: real): string {
        const digits = count < 1e6 ? 0 : 1;
        return Qt.locale(locale).formattedDataSize(count, digits, Locale.DataSizeSIFormat);
    }
    function seconds(value: real): string {
        return value.toFixed(1) + "s";
    }
}
