// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/photoMetadataBlock.h"

#include "extraction/pictures/PictureFile.h"
#include <QDateTime>
#include <QFileInfo>
#include <QTest>
#include <time.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

class PhotoMetadataBlockTest : public QObject {
    Q_OBJECT
private slots:
    void takesDate_data();
    void takesDate();
    void describesCamera_data();
    void describesCamera();
    void forms_data();
    void forms();
    void readsFacts_data();
    void readsFacts();
    void survivesDamage();
    void tellsBirthInLocalTime_data();
    void tellsBirthInLocalTime();
};

void PhotoMetadataBlockTest::takesDate_data()
{
    QTest::addColumn<QString>("exif");
    QTest::addColumn<QString>("date");
    QTest::newRow("with time") << u"2023:12:24 18:03:11"_s << u"2023-12-24"_s;
    QTest::newRow("clock never set") << u"0000:00:00 00:00:00"_s << u"0000-00-00"_s;
    QTest::newRow("not digits") << u"abcd:ef:gh"_s << u"abcd-ef-gh"_s;
    QTest::newRow("characters, not code units") << u"2023:1👍:24"_s << u"2023-1👍-24"_s;
    QTest::newRow("empty pieces drop out") << u"2023::12:4"_s << QString();
    QTest::newRow("colon in front") << u":2023:12:24"_s << QString();
    QTest::newRow("dashes") << u"2023-12-24 18:03:11"_s << QString();
    QTest::newRow("month of one") << u"2023:1:24 18:03"_s << QString();
    QTest::newRow("cut") << u"2023:12:2"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void PhotoMetadataBlockTest::takesDate()
{
    QFETCH(QString, exif);
    QTEST(exifDateString(exif).value_or(QString()), "date");
}

void PhotoMetadataBlockTest::describesCamera_data()
{
    QTest::addColumn<QString>("make");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("camera");
    QTest::newRow("both") << u"SONY"_s << u"ILCE-7M3"_s << u"SONY ILCE-7M3"_s;
    QTest::newRow("model names the make") << u"Canon"_s << u"Canon EOS R5"_s << u"Canon EOS R5"_s;
    QTest::newRow("in other letters, and not in front") << u"NIKON"_s << u"Coolpix by Nikon"_s << u"Coolpix by Nikon"_s;
    QTest::newRow("model alone") << QString() << u"X100"_s << u"X100"_s;
    QTest::newRow("make alone") << u"Apple"_s << QString() << u"Apple"_s;
    QTest::newRow("neither") << QString() << QString() << QString();
    QTest::newRow("longest") << QString() << u"x"_s.repeated(200) << u"x"_s.repeated(200);
    QTest::newRow("no camera has such a name") << u"A"_s << u"x"_s.repeated(199) << QString();
}

void PhotoMetadataBlockTest::describesCamera()
{
    QFETCH(QString, make);
    QFETCH(QString, model);
    QTEST(cameraDescription(make, model).value_or(QString()), "camera");
}

void PhotoMetadataBlockTest::forms_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("fileDate");
    QTest::addColumn<QString>("block");
    const QString header = u"PHOTO METADATA (facts about this file — use for the date and, where relevant, the device; "
                           "never invent values beyond these):\n"_s;
    QTest::newRow("taken, camera") << u"2024:06:01 10:00:00"_s << u"Apple iPhone 13"_s << u"2025-01-01"_s
                                   << header + u"- Date taken: 2024-06-01\n- Camera: Apple iPhone 13"_s;
    QTest::newRow("file's date alone") << QString() << QString() << u"2025-01-01"_s
                                       << header + u"- File date (approximate): 2025-01-01"_s;
    QTest::newRow("date taken of no use") << u"2023-12-24 18:03:11"_s << QString() << u"2025-01-01"_s
                                          << header + u"- File date (approximate): 2025-01-01"_s;
    QTest::newRow("camera alone") << QString() << u"X100"_s << QString() << header + u"- Camera: X100"_s;
    QTest::newRow("nothing known") << u"bad"_s << QString() << QString() << QString();
    QTest::newRow("lines of its own") << u"2\n24:0\r:01"_s << u"X\n- Date taken: 1\u2028Y"_s << QString()
                                      << header + u"- Date taken: 2 24-0 -01\n- Camera: X - Date taken: 1 Y"_s;
}

void PhotoMetadataBlockTest::forms()
{
    QFETCH(QString, taken);
    QFETCH(QString, model);
    QFETCH(QString, fileDate);
    const auto known = [](const QString &text) { return text.isEmpty() ? std::nullopt : std::optional(text); };
    PhotoFacts facts;
    facts.captureDate = known(taken);
    facts.model = model;
    QTEST(photoMetadataBlock(facts, known(fileDate)).value_or(QString()), "block");
}

/// EXIF of three strings, in a JPEG of nothing else. `dateType` is the TIFF type of the date: 2 is a string.
static QByteArray jpegWithEXIF(QByteArray make, QByteArray model, QByteArray date, char dateType = 2)
{
    const auto word = [](quint32 value) { return QByteArray(reinterpret_cast<const char *>(&value), 4); };
    const auto field = [&](const char *tag, char type, const QByteArray &value, qsizetype offset) {
        return QByteArray(tag, 2) + type + '\0' + word(quint32(value.size())) + word(quint32(offset));
    };
    for (QByteArray *const value : { &make, &model, &date })
        *value = value->leftJustified(5) + '\0'; // shorter ones would stand in the field itself
    const qsizetype values = 8 + 2 + 3 * 12 + 4 + 2 + 12 + 4;
    const QByteArray tiff = "II*\0\x08\0\0\0\3\0"_ba + field("\x0F\x01", 2, make, values)
        + field("\x10\x01", 2, model, values + make.size()) + "\x69\x87\4\0\1\0\0\0"_ba + word(8 + 2 + 3 * 12 + 4)
        + word(0) + "\1\0"_ba + field("\x03\x90", dateType, date, values + make.size() + model.size()) + word(0) + make
        + model + date;
    const qsizetype size = tiff.size() + 8;
    return "\xFF\xD8\xFF\xE1"_ba + char(size >> 8) + char(size) + "Exif\0\0"_ba + tiff + "\xFF\xD9"_ba;
}

void PhotoMetadataBlockTest::readsFacts_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("facts");
    for (const char *const name : { "exif.jpg", "exif.png", "exif.webp", "exif.tif", "exif.heic", "exif.avif" })
        QTest::newRow(name) << sample(QString::fromLatin1(name)) << u"2023:12:24 18:03:11|SONY|ILCE-7M3|1"_s;
    QTest::newRow("orientation-6.jpg") << sample(u"orientation-6.jpg"_s) << u"none|||6"_s;
    QTest::newRow("none") << sample(u"palette.png"_s) << u"none|||1"_s;
    QTest::newRow("white space around") << jpegWithEXIF(" Apple \n", "\tiPhone 15 Pro ", "2023:12:24")
                                        << u"2023:12:24|Apple|iPhone 15 Pro|1"_s;
    QTest::newRow("UTF-8 and Latin-1") << jpegWithEXIF("Caf\xC3\xA9 ", "Caf\xE9 ", "2023:12:24")
                                       << u"2023:12:24|Café|Café|1"_s;
    QTest::newRow("date that is no string")
        << jpegWithEXIF("Maker", "Model", "2023:12:24", 7) << u"none|Maker|Model|1"_s;
    QTest::newRow("format that is not asked for") << "%!PS-Adobe-3.0\n"_ba << u"none|||1"_s;
}

static QString joined(const PhotoFacts &facts)
{
    return u"%1|%2|%3|%4"_s.arg(facts.captureDate.value_or(u"none"_s), facts.make, facts.model).arg(facts.orientation);
}

void PhotoMetadataBlockTest::readsFacts()
{
    QFETCH(QByteArray, file);
    QTEST(joined(readPhotoFacts(openBytes(file))), "facts");
}

void PhotoMetadataBlockTest::survivesDamage()
{
    const QString whole = joined(readPhotoFacts(openBytes(sample(u"exif.jpg"_s))));
    QByteArray file = jpegWithEXIF("Maker", "Model", "2023:12:24");
    for (qsizetype size = 0; size < file.size(); ++size)
        QVERIFY(joined(readPhotoFacts(QByteArrayView(file).first(size))) != whole);
    for (qsizetype i = 0; i < file.size(); ++i) {
        QByteArray spoilt = file;
        spoilt[i] = char(~spoilt[i]);
        QVERIFY(readPhotoFacts(QByteArrayView(spoilt)).orientation <= 8);
    }
    QCOMPARE(joined(readPhotoFacts(openBytes(QByteArray()))), u"none|||1"_s);
}

void PhotoMetadataBlockTest::tellsBirthInLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("hours");
    QTest::newRow("far west") << "AAA12"_ba << -12;
    QTest::newRow("far east") << "BBB-14"_ba << 14; // never the same day as in the far west
}

void PhotoMetadataBlockTest::tellsBirthInLocalTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, hours);
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(file.setFileTime(QDateTime(QDate(2001, 1, 1), QTime(12, 0), Qt::UTC), QFileDevice::FileModificationTime));
    const QFileInfo info(file.fileName());
    // Where the file system keeps no birth, the modification stands for it.
    const QDateTime made = info.birthTime().isValid() ? info.birthTime() : info.lastModified();
    const QDate expected = made.toUTC().addSecs(hours * 3600).date();

    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", zone);
    ::tzset();
    const auto date
        = fileCreationDateString(FileDescriptor(::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY)));
    before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
    ::tzset();
    QCOMPARE(date.value_or(QString()), expected.toString(Qt::ISODate));
}

QTEST_GUILESS_MAIN(PhotoMetadataBlockTest)
#include "tst_photoMetadataBlock.moc"
