// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/readImage.h"

#include "extraction/pictures/makeThumbnail.h"
#include "extraction/pictures/PictureFile.h"
#include "extraction/vips/VipsPictureDecoder.h"
#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QtEndian>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ReadImageTest : public QObject {
    Q_OBJECT
private slots:
    void showsSample_data();
    void showsSample();
    void showsWhatQtWrote_data();
    void showsWhatQtWrote();
    void boundsTheSize_data();
    void boundsTheSize();
    void convertsToSRGB_data();
    void convertsToSRGB();
    void endsOnDamage_data();
    void endsOnDamage();
    void refuses_data();
    void refuses();
    void asksForTheFurtherDecoder_data();
    void asksForTheFurtherDecoder();

private:
    /// What the model sees of a file with these bytes and this extension.
    QImage read(const QByteArray &bytes, std::string_view extension);

    VipsPictureDecoder m_vips;
};

static QByteArray saved(const QImage &image, const char *format, int quality = -1)
{
    QBuffer buffer;
    if (!image.save(&buffer, format, quality))
        qFatal("cannot write %s", format);
    return buffer.data();
}

static QImage quarters(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isLeft = x < size.width() / 2;
            const bool isUpper = y < size.height() / 2;
            image.setPixelColor(x, y, isUpper ? (isLeft ? Qt::red : Qt::green) : (isLeft ? Qt::blue : Qt::yellow));
        }
    }
    return image;
}

QImage ReadImageTest::read(const QByteArray &bytes, std::string_view extension)
{
    const auto answer = readImage(openBytes(bytes), extension, &m_vips);
    const auto *const extraction = std::get_if<Extraction>(&answer);
    const auto *const content = extraction ? std::get_if<FileContent>(extraction) : nullptr;
    if (!content)
        return {};
    const auto &image = std::get<ImageContent>(*content);
    return image.mimeType == u"image/jpeg"_s ? QImage::fromData(image.data, "jpeg") : QImage();
}

void ReadImageTest::showsSample_data()
{
    QTest::addColumn<QString>("shown");
    const QString same = u"40x24 red green blue yellow"_s;
    const QString onWhite = u"40x24 red green blue white"_s;
    for (const char *const name :
        { "orientation-1.jpg", "orientation-2.jpg", "orientation-3.jpg", "orientation-4.jpg", "orientation-5.jpg",
            "orientation-6.jpg", "orientation-7.jpg", "orientation-8.jpg", "orientation-2.tif", "orientation-6.webp",
            "cmyk.jpg", "arithmetic.jpg", "progressive.jpg", "palette.png", "animated.gif", "animated.webp",
            "big-endian.tif", "float.tif", "pyramid.tif", "thumbnail.heic", "exif.avif", "quarters.exr" })
        QTest::newRow(name) << same;
    for (const char *const name :
        { "deep-alpha.png", "interlaced-alpha.png", "deep-alpha.tif", "alpha.webp", "alpha.avif", "alpha.exr" })
        QTest::newRow(name) << onWhite;
    QTest::newRow("orientation-6.heic") << u"24x40 green yellow red blue"_s; // HEIF ignores what EXIF says here
    QTest::newRow("narrow-pixels.jpg") << u"20x24 red green blue yellow"_s;
    QTest::newRow("fax-pixels.tif") << u"19x24 red green blue yellow"_s;
    QTest::newRow("two-sizes.ico") << u"8x8 red red red red"_s;
    QTest::newRow("grey-alpha.png") << u"40x24 #363636 #b6b6b6 black white"_s;
}

void ReadImageTest::showsSample()
{
    const QByteArray bytes = sample(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(describe(read(bytes, "jpg")), "shown"); // the content counts, not the extension
}

/// A moving picture whose first frame is smaller than its canvas and lies in the lower right of it.
static QByteArray withSmallFirstFrame(const QByteArray &webp, QSize frame)
{
    const auto number = [](int value) { return QByteArray(1, char(value)) + QByteArray(1, char(value >> 8)) + '\0'; };
    const auto chunk = [](const char *name, const QByteArray &content) {
        QByteArray size(4, '\0');
        qToLittleEndian(quint32(content.size()), size.data());
        return name + size + content;
    };
    const QByteArray canvas = number(frame.width() * 2 - 1) + number(frame.height() * 2 - 1);
    const QByteArray place = number(frame.width() / 2) + number(frame.height() / 2); // halved, says the format
    const QByteArray frameSize = number(frame.width() - 1) + number(frame.height() - 1);
    constexpr int moves = 2;
    return chunk("RIFF",
        "WEBP" + chunk("VP8X", QByteArray(1, char(moves)) + QByteArray(3, '\0') + canvas)
            + chunk("ANIM", QByteArray(6, '\0'))
            + chunk("ANMF", place + frameSize + number(100) + '\0' + webp.sliced(12)));
}

void ReadImageTest::showsWhatQtWrote_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const QImage image = quarters({ 40, 24 });
    const QString same = u"40x24 red green blue yellow"_s;
    QTest::newRow("bmp") << saved(image, "bmp") << same;
    QTest::newRow("bmp, paletted") << saved(image.convertToFormat(QImage::Format_Indexed8), "bmp") << same;
    QTest::newRow("ico") << saved(image, "ico") << same;
    QImage red({ 20, 12 }, QImage::Format_RGB32);
    red.fill(Qt::red);
    QTest::newRow("webp, first frame is small")
        << withSmallFirstFrame(saved(red, "webp", 100), red.size()) << u"40x24 white white white red"_s;
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    const QString greyOfBlue = grey.pixelColor(5, 20).name(); // differs between versions of Qt
    QTest::newRow("grey jpeg") << saved(grey, "jpeg") << u"40x24 grey #dcdcdc %1 white"_s.arg(greyOfBlue);
    const QByteArray png = saved(quarters({ 32, 32 }), "png");
    const auto word = [](qsizetype value) {
        QByteArray bytes(4, '\0');
        qToBigEndian(quint32(value), bytes.data());
        return bytes;
    };
    QTest::newRow("icns") << "icns" + word(16 + png.size()) + "ic11" + word(8 + png.size()) + png
                          << u"32x32 red green blue yellow"_s;
}

void ReadImageTest::showsWhatQtWrote()
{
    QFETCH(QByteArray, bytes);
    QTEST(describe(read(bytes, "png")), "shown");
}

void ReadImageTest::boundsTheSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("bounded");
    QTest::newRow("at the bound") << QSize(1568, 900) << QSize(1568, 900);
    QTest::newRow("a pixel longer") << QSize(1569, 900) << QSize(1568, 899);
    QTest::newRow("upright") << QSize(2000, 4000) << QSize(784, 1568);
    QTest::newRow("shrunk in the decoder too") << QSize(6400, 1600) << QSize(1568, 392);
    QTest::newRow("a line") << QSize(5000, 1) << QSize(1568, 1);
}

void ReadImageTest::boundsTheSize()
{
    QFETCH(QSize, size);
    QFETCH(QSize, bounded);
    const QImage image = quarters(size);
    for (const char *const format : { "jpeg", "png", "webp", "tiff", "bmp" }) {
        const QImage shown = read(saved(image, format), "jpg");
        QVERIFY2(shown.size() == bounded, format);
        if (size.height() > 1)
            QCOMPARE(describe(shown).section(u' ', 1), u"red green blue yellow"_s);
    }
}

void ReadImageTest::convertsToSRGB_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("jpeg") << "jpeg"_ba;
    QTest::newRow("png") << "png"_ba;
    QTest::newRow("tiff") << "tiff"_ba;
}

void ReadImageTest::convertsToSRGB()
{
    QFETCH(QByteArray, format);
    QImage wide(16, 16, QImage::Format_RGB32);
    wide.fill(QColor(40, 180, 90));
    wide.setColorSpace(QColorSpace::AdobeRgb);
    const QColor expected = wide.convertedToColorSpace(QColorSpace::SRgb).pixelColor(8, 8);
    QVERIFY(expected.red() < 10); // or it would show nothing
    const QColor shown = read(saved(wide, format.constData(), 95), "jpg").pixelColor(8, 8);
    QVERIFY2(std::abs(shown.red() - expected.red()) < 10 && std::abs(shown.green() - expected.green()) < 10
            && std::abs(shown.blue() - expected.blue()) < 10,
        qPrintable(shown.name()));
}

/// The file with its last scan so many times more.
static QByteArray withScans(const QByteArray &progressive, int more)
{
    const qsizetype lastScan = progressive.lastIndexOf("\xFF\xDA");
    return progressive.chopped(2) + progressive.sliced(lastScan).chopped(2).repeated(more) + progressive.last(2);
}

void ReadImageTest::endsOnDamage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const QImage image = quarters({ 400, 240 });
    const auto half = [](const QByteArray &bytes) { return bytes.first(bytes.size() / 2); };
    QTest::newRow("thousand scans") << withScans(sample(u"progressive.jpg"_s), 1000)
                                    << u"40x24 red green blue yellow"_s;
    QTest::newRow("half a jpeg") << half(saved(image, "jpeg")) << u"400x240 red green grey grey"_s;
    QTest::newRow("half a png") << half(saved(image, "png", 100)) << u"400x240 red green white white"_s;
    QImage grainy = image; // as plain colours the format says all at the front
    for (int y = 0; y < grainy.height(); ++y) {
        for (int x = 0; x < grainy.width(); ++x)
            grainy.setPixel(x, y, grainy.pixel(x, y) ^ (uint(x * y) % 16 * 0x010101));
    }
    QTest::newRow("half a webp") << half(saved(grainy, "webp", 90)) << u"400x240 red green white white"_s;
    QTest::newRow("half a bmp") << half(saved(image.scaled(40, 24), "bmp")) << u"40x24 white white blue yellow"_s;
    QTest::newRow("start of a jpeg") << saved(image, "jpeg").first(200) << u"nothing"_s;
    QTest::newRow("start of a png") << saved(image, "png").first(33) << u"nothing"_s;
    for (const char *const name : { "animated.gif", "alpha.webp", "exif.heic", "quarters.exr", "big-endian.tif" })
        QTest::newRow(name) << sample(QString::fromLatin1(name)).first(40) << u"nothing"_s;
}

void ReadImageTest::endsOnDamage()
{
    QFETCH(QByteArray, bytes);
    QTEST(describe(read(bytes, "jpg")), "shown");
    QCOMPARE(read(bytes, "jpg"), read(bytes, "jpg"));
}

static QByteArray pngHeader(quint32 width, quint32 height)
{
    QByteArray bytes = saved(QImage(1, 1, QImage::Format_RGB32), "png");
    qToBigEndian(width, bytes.data() + 16);
    qToBigEndian(height, bytes.data() + 20);
    quint32 crc = 0xFFFFFFFF; // of the changed header, as ISO 3309 has it
    for (const char byte : bytes.sliced(12, 17)) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    qToBigEndian(~crc, bytes.data() + 29);
    return bytes;
}

void ReadImageTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no bytes") << QByteArray();
    QTest::newRow("text") << "This is no picture, whatever its name says."_ba;
    QTest::newRow("SVG") << "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"_ba;
    QTest::newRow("GIF of 65535 by 65535") << "GIF89a\xFF\xFF\xFF\xFF\0\0\0,\0\0\0\0\xFF\xFF\xFF\xFF\0\2\2\0;"_ba;
    QTest::newRow("PNG of 50000 by 50000") << pngHeader(50000, 50000);
    QByteArray huge = saved(QImage(1, 1, QImage::Format_RGB32), "bmp");
    qToLittleEndian<qint32>(60000, huge.data() + 18);
    qToLittleEndian<qint32>(60000, huge.data() + 22);
    QTest::newRow("BMP of 60000 by 60000") << huge;
    huge = sample(u"progressive.jpg"_s);
    huge.replace(huge.indexOf("\xFF\xC2") + 5, 4, "\xFF\0\xFF\0"_ba);
    QTest::newRow("JPEG of 65280 by 65280") << huge;
    const QByteArray png = pngHeader(50000, 50000);
    QTest::newRow("ICO with a PNG of 50000 by 50000")
        << "\0\0\1\0\1\0\0\0\0\0\1\0\x20\0"_ba + QByteArray(1, char(png.size())) + "\0\0\0\x16\0\0\0"_ba + png;
}

void ReadImageTest::refuses()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(describe(read(bytes, "png")), u"nothing"_s);
    const auto answer = readImage(openBytes(bytes), "png", &m_vips);
    const auto *const extraction = std::get_if<Extraction>(&answer);
    QVERIFY(extraction && std::holds_alternative<NoTextFound>(*extraction));
}

void ReadImageTest::asksForTheFurtherDecoder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNeeded");
    QTest::newRow("webp") << u"alpha.webp"_s << false;
    QTest::newRow("tiff") << u"pyramid.tif"_s << true;
    QTest::newRow("heif") << u"exif.heic"_s << true;
    QTest::newRow("avif") << u"exif.avif"_s << true;
    QTest::newRow("exr") << u"quarters.exr"_s << false;
}

void ReadImageTest::asksForTheFurtherDecoder()
{
    QFETCH(QString, name);
    QFETCH(bool, isNeeded);
    const auto answer = readImage(openBytes(sample(name)), "png", nullptr);
    QCOMPARE(std::holds_alternative<NeedsFurtherDecoder>(answer), isNeeded);
}

QTEST_GUILESS_MAIN(ReadImageTest)
#include "tst_readImage.moc"
