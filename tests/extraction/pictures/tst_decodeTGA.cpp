// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeTGA.h"

#include "extraction/pictures/PictureFile.h"
#include "extraction/pictures/ThumbnailBuilder.h"
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class DecodeTGATest : public QObject {
    Q_OBJECT
private slots:
    void decodes_data();
    void decodes();
    void refuses_data();
    void refuses();
};

static QString shown(const QByteArray &bytes)
{
    ThumbnailBuilder builder(1568);
    if (!decodeTGA(openBytes(bytes), builder))
        return u"refused"_s;
    return describe(builder.finish().value_or(QImage()));
}

/// The 18 bytes at the front of a picture of two by two pixels; `map` is its colour map's fields, from its type on.
static QByteArray header(char type, char bits, char descriptor, const QByteArray &map = QByteArray(7, '\0'))
{
    return QByteArray(1, '\0') + map.first(1) + type + map.sliced(1, 5) + "\0\0\0\0\2\0\2\0"_ba + bits + descriptor;
}

void DecodeTGATest::decodes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("picture");
    const QByteArray red = "\0\0\xFF"_ba;
    const QByteArray green = "\0\xFF\0"_ba;
    const QByteArray blue = "\xFF\0\0"_ba;
    const QByteArray yellow = "\0\xFF\xFF"_ba;
    const QString same = u"2x2 red green blue yellow"_s;
    const QByteArray fromBelow = blue + yellow + red + green;
    QTest::newRow("from below") << header(2, 24, 0) + fromBelow << same;
    QTest::newRow("from above") << header(2, 24, 0x20) + red + green + blue + yellow << same;
    QTest::newRow("from the lower right") << header(2, 24, 0x10) + yellow + blue + green + red << same;
    QTest::newRow("from the upper right") << header(2, 24, 0x30) + green + red + yellow + blue << same;
    QTest::newRow("behind an identifier") << "\3"_ba + header(2, 24, 0).sliced(1) + "abc" + fromBelow << same;
    QTest::newRow("map that is not used") << header(2, 24, 0, "\1\0\0\1\0\x18\0"_ba) + red + fromBelow << same;

    const QByteArray five = "\x1F\0\xE0\x7F\0\x7C\xE0\3"_ba;
    QTest::newRow("15 bits") << header(2, 15, 0) + five << same;
    QTest::newRow("16 bits without alpha") << header(2, 16, 0) + five << same;
    QTest::newRow("16 bits with alpha") << header(2, 16, 1) + "\x1F\x80\xE0\x7F\0\xFC\xE0\x83"_ba
                                        << u"2x2 red green blue white"_s;
    const auto withAlpha = [&](const QByteArray &of) { return blue + of + yellow + of + red + of + green + of; };
    QTest::newRow("32 bits, alpha not announced") << header(2, 32, 0) + withAlpha("\0"_ba) << same;
    QTest::newRow("alpha") << header(2, 32, 8) + blue + "\xFF"_ba + yellow + "\0"_ba + red + "\xFF"_ba + green
            + "\xFF"_ba << u"2x2 red green blue white"_s;
    QTest::newRow("alpha of nothing but zeros") << header(2, 32, 8) + withAlpha("\0"_ba) << same;
    const auto footer = [&](char attributes) {
        return QByteArray(494, '\0') + attributes + "\x22\0\0\0\0\0\0\0TRUEVISION-XFILE.\0"_ba;
    };
    QTest::newRow("alpha that the extension calls void")
        << header(2, 32, 8) + blue + "\xFF"_ba + yellow + "\0"_ba + red + "\0"_ba + green + "\0"_ba + footer(0) << same;
    QTest::newRow("alpha that the extension calls good")
        << header(2, 32, 8) + withAlpha("\0"_ba) + footer(3) << u"2x2 white white white white"_s;

    QTest::newRow("runs") << header(10, 24, 0) + "\x80"_ba + blue + "\2"_ba + yellow + red + green << same;
    QTest::newRow("run over two rows") << header(10, 24, 0) + "\0"_ba + blue + "\x81"_ba + yellow + "\0"_ba + green
                                       << u"2x2 yellow green blue yellow"_s;
    QTest::newRow("run past the end") << header(10, 24, 0) + "\xFF"_ba + blue << u"2x2 blue blue blue blue"_s;
    const QByteArray map = red + green + blue + yellow;
    QTest::newRow("colour map") << header(1, 8, 0, "\1\0\0\4\0\x18\0"_ba) + map + "\2\3\0\1"_ba << same;
    QTest::newRow("colour map, in runs") << header(9, 8, 0, "\1\0\0\4\0\x18\0"_ba) + map + "\3\2\3\0\1"_ba << same;
    QTest::newRow("colour map from 5 on") << header(1, 8, 0, "\1\5\0\4\0\x18\0"_ba) + map + "\7\x08\5\6"_ba << same;
    QTest::newRow("index outside the map")
        << header(1, 8, 0, "\1\5\0\4\0\x18\0"_ba) + map + "\7\x08\0\xFF"_ba << u"2x2 black black blue yellow"_s;
    QTest::newRow("indices of 16 bits") << header(1, 16, 0, "\1\0\0\4\0\x18\0"_ba) + map + "\2\0\3\0\0\0\1\0"_ba
                                        << same;
    QTest::newRow("grey") << header(3, 8, 0) + "\0\xFF\x80\0"_ba << u"2x2 grey black black white"_s;
    QTest::newRow("grey with alpha") << header(3, 16, 8) + "\0\xFF\0\0\x80\xFF\0\xFF"_ba
                                     << u"2x2 grey black black white"_s;
    QTest::newRow("second row cut off") << header(2, 24, 0) + blue + yellow + red << u"2x2 white white blue yellow"_s;
    QTest::newRow("no row") << header(2, 24, 0) + blue << u"nothing"_s;
}

void DecodeTGATest::decodes()
{
    QFETCH(QByteArray, bytes);
    QTEST(shown(bytes), "picture");
}

void DecodeTGATest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray pixels(12, '\x80');
    QTest::newRow("header cut off") << header(2, 24, 0).first(17);
    QTest::newRow("colour map cut off") << header(1, 8, 0, "\1\0\0\4\0\x18\0"_ba) + "\0\0"_ba;
    QTest::newRow("unknown type") << header(4, 24, 0) + pixels;
    QTest::newRow("interleaved") << header(2, 24, 0x40) + pixels;
    QTest::newRow("colours of 8 bits") << header(2, 8, 0) + pixels;
    QTest::newRow("indices without a map") << header(1, 8, 0) + pixels;
    QTest::newRow("no width") << header(2, 24, 0).replace(12, 2, "\0\0"_ba) + pixels;
    QTest::newRow("65535 by 65535") << header(2, 24, 0).replace(12, 4, "\xFF\xFF\xFF\xFF"_ba) + pixels;
}

void DecodeTGATest::refuses()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(shown(bytes), u"refused"_s);
}

QTEST_GUILESS_MAIN(DecodeTGATest)
#include "tst_decodeTGA.moc"
