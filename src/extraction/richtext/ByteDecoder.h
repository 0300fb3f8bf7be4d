// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <QByteArrayView>
#include <QString>

struct UConverter;

namespace Varlo {

/// Turns text of changing code pages into Unicode. A character may be split over several calls for the same code page.
/// Bytes that mean nothing become U+FFFD, an unknown code page is taken for the western one.
class ByteDecoder {
public:
    void append(QByteArrayView bytes, int codePage, QString &text);
    /// Other text follows: half a character is now a damaged one.
    void endRun(QString &text);

private:
    struct CloseConverter {
        void operator()(UConverter *converter) const;
    };
    using Converter = std::unique_ptr<UConverter, CloseConverter>;

    UConverter *converterFor(int codePage);
    void convert(QByteArrayView bytes, bool isEndOfRun, QString &text);

    std::map<int, Converter> m_converters; // each is opened once: a file may change its fonts with every byte
    UConverter *m_current = nullptr; // has begun a run
    int m_codePage = 0; // of m_current
};

} // namespace Varlo
