// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick

/// Figures as people read them in the interface's language.
QtObject {
    property string locale ///< changes with the interface's language

    function bytes(count: real): string {
        const digits = count < 1e6 ? 0 : 1;
        const text = Qt.locale(locale).formattedDataSize(count, digits, Locale.DataSizeSIFormat);
        return /^(C|en)/.test(Qt.locale(locale).name) ? text.replace("kB", "KB") : text; // as English desktops write it
    }
    /// A name that has letters written from right to left, or signs beyond 16 bits that may be such, between marks
    /// (Unicode's UAX #9) that keep its extension at its right end and its direction of writing from turning what stands
    /// beside it. Others need none, and for the marks another font would be looked for.
    function isolated(name: string): string {
        return /[\u0590-\u08FF\uD800-\uDFFF\uFB1D-\uFDFF\uFE70-\uFEFF]/.test(name)
            ? String.fromCharCode(0x2066) + name + String.fromCharCode(0x2069) : name;
    }
    /// What there is of it, with the separator between.
    function joined(texts: var, separator: string): string {
        return texts.filter(text => text !== "").join(separator);
    }
    function place(folderName: string, byteSize: real): string {
        return isolated(folderName) + " · " + bytes(byteSize);
    }
    function seconds(value: var): string {
        return value.toFixed(1) + "s";
    }
}
