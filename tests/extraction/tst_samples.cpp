// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/supportedExtensions.h"

#include <cmath>
#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

/// Reads the whole folder of samples in one run of the command, as a user would, and each picture alone; a row for each
/// file.
class SamplesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void coverEveryExtension();
    void areReadAsExpected_data();
    void areReadAsExpected();
    void readAloneAsTogether_data();
    void readAloneAsTogether();

private:
    static QList<QJsonObject> extract(const QStringList &arguments);

    QHash<QString, QJsonObject> m_read; // by the file's name
    QTemporaryDir m_pictures;
};

static const QDir inbox(u"" VARLO_SOURCE_DIR "/samples/inbox"_s);
static const QDir expectations(u"" VARLO_SOURCE_DIR "/samples/expected"_s);

static QString lowerExtension(const QString &name) { return QFileInfo(name).suffix().toLower(); }

static QJsonObject expectationFor(const QString &name)
{
    QFile file(expectations.filePath(name + u".json"_s));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The words without the punctuation around them.
static QStringList wordsOf(const QString &text)
{
    static const QRegularExpression separator(
        u"[^\\w]*\\s+[^\\w]*|^[^\\w]+|[^\\w]+$"_s, QRegularExpression::UseUnicodePropertiesOption);
    return text.split(separator, Qt::SkipEmptyParts);
}

static double shareFound(const QStringList &words, QStringList found)
{
    const auto right = std::ranges::count_if(words, [&found](const QString &word) { return found.removeOne(word); });
    return words.isEmpty() ? 0 : double(right) / double(words.size());
}

static QString firstDifference(const QString &actual, const QString &expected)
{
    const auto end = std::ranges::mismatch(actual, expected).in1;
    const qsizetype position = std::max<qsizetype>(end - actual.begin() - 20, 0);
    return u"got \"…%1\", expected \"…%2\""_s.arg(actual.mid(position, 60), expected.mid(position, 60));
}

/// What is wrong with the text; "" when nothing is.
static QString faultOfText(const QString &text, const QJsonObject &expected)
{
    if (expected.contains(u"text"_s) && text != expected[u"text"_s].toString())
        return firstDifference(text, expected[u"text"_s].toString());
    for (const QJsonValue &phrase : expected[u"phrases"_s].toArray()) {
        if (!text.contains(phrase.toString()))
            return u"lacks \"%1\": %2"_s.arg(phrase.toString(), text);
    }
    if (!expected.contains(u"text"_s) && !expected.contains(u"phrases"_s) && !expected.contains(u"words"_s))
        return u"nothing is expected of the text"_s;
    const double least = expected[u"leastShare"_s].toDouble();
    const double share = shareFound(wordsOf(expected[u"words"_s].toString()), wordsOf(text));
    return share < least ? u"%1 of the words are right: %2"_s.arg(share).arg(text) : QString();
}

static QString metadataBlock(const QStringList &lines, const QFileInfo &file)
{
    const QDateTime created = file.birthTime().isValid() ? file.birthTime() : file.lastModified();
    QString block = u"PHOTO METADATA (facts about this file — use for the date and, where relevant, the device; never "
                    u"invent values beyond these):"_s;
    for (const QString &line : lines)
        block += u"\n- "_s + line;
    return block.replace(u"(that of the file)"_s, created.date().toString(Qt::ISODate));
}

static bool isNear(QColor actual, QColor expected, int tolerance)
{
    return std::abs(actual.red() - expected.red()) <= tolerance
        && std::abs(actual.green() - expected.green()) <= tolerance
        && std::abs(actual.blue() - expected.blue()) <= tolerance;
}

static QString faultOfColours(const QImage &picture, const QJsonObject &expected)
{
    for (const QJsonValue &colour : expected[u"colours"_s].toArray()) {
        const QJsonArray at = colour[u"at"_s].toArray();
        const QPoint place(int(at[0].toDouble() * picture.width()), int(at[1].toDouble() * picture.height()));
        if (!isNear(picture.pixelColor(place), QColor(colour[u"is"_s].toString()), expected[u"tolerance"_s].toInt()))
            return u"%1 at %2, %3 in place of %4"_s.arg(picture.pixelColor(place).name())
                .arg(place.x())
                .arg(place.y())
                .arg(colour[u"is"_s].toString());
    }
    return {};
}

/// What is wrong with the picture's file; "" when nothing is.
static QString faultOfPicture(const QString &path, const QJsonObject &read, const QJsonObject &expected)
{
    const QImage picture(path, "JPEG");
    if (picture.isNull())
        return u"%1 is no JPEG"_s.arg(path);
    if (read[u"byteCount"_s].toInteger() != QFileInfo(path).size())
        return u"another size in bytes was told"_s;
    if (picture.size() != QSize(expected[u"width"_s].toInt(), expected[u"height"_s].toInt()))
        return u"%1 by %2 pixels"_s.arg(picture.width()).arg(picture.height());
    if (picture.size() != QSize(read[u"width"_s].toInt(), read[u"height"_s].toInt()))
        return u"another size in pixels was told"_s;
    return faultOfColours(picture, expected);
}

/// What the command tells of each file.
QList<QJsonObject> SamplesTest::extract(const QStringList &arguments)
{
    QProcess varlo;
    varlo.start(u"" VARLO_BINARY_DIR "/src/cli/varlo"_s, QStringList { u"extract"_s, u"--json"_s } + arguments);
    varlo.waitForFinished(-1); // CTest limits it
    QList<QJsonObject> objects;
    for (const QByteArray &line : varlo.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty())
            objects.append(QJsonDocument::fromJson(line).object());
    }
    return objects;
}

void SamplesTest::initTestCase()
{
    QStringList arguments { u"--image-dir"_s, m_pictures.path(), u"--"_s };
    for (const QString &name : inbox.entryList(QDir::Files))
        arguments << inbox.filePath(name);
    for (const QJsonObject &object : extract(arguments))
        m_read.insert(QFileInfo(object[u"path"_s].toString()).fileName(), object);
}

void SamplesTest::coverEveryExtension()
{
    QSet<QString> covered;
    for (const QString &name : inbox.entryList(QDir::Files)) {
        if (expectationFor(name)[u"result"_s] == u"content"_s)
            covered.insert(lowerExtension(name));
    }
    for (const std::string_view extension : supportedExtensions())
        QVERIFY2(covered.contains(QLatin1StringView(extension.data(), qsizetype(extension.size()))), extension.data());
    for (const QString &expectation : expectations.entryList(QDir::Files))
        QVERIFY2(inbox.exists(expectation.chopped(5)), qPrintable(expectation));
}

void SamplesTest::areReadAsExpected_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : inbox.entryList(QDir::Files)) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void SamplesTest::areReadAsExpected()
{
    QFETCH(QString, name);
    const QJsonObject expected = expectationFor(name);
    const QJsonObject read = m_read[name];
    QCOMPARE(read[u"result"_s].toString(), expected[u"result"_s].toString());
    QCOMPARE(read[u"kind"_s].toString(), expected[u"kind"_s].toString());
    QString fault;
    if (expected[u"kind"_s] == u"text"_s)
        fault = faultOfText(read[u"text"_s].toString(), expected);
    if (expected[u"kind"_s] == u"image"_s) {
        QCOMPARE(read[u"mimeType"_s].toString(), u"image/jpeg"_s);
        QCOMPARE(read[u"metadata"_s].toString(),
            metadataBlock(expected[u"metadata"_s].toVariant().toStringList(), QFileInfo(inbox.filePath(name))));
        fault = faultOfPicture(QDir(m_pictures.path()).filePath(read[u"imageFile"_s].toString()), read, expected);
    }
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

// What one kind of picture has loaded and been allowed is not there for another that comes alone.
void SamplesTest::readAloneAsTogether_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : inbox.entryList(QDir::Files)) {
        if (expectationFor(name)[u"kind"_s] == u"image"_s)
            QTest::newRow(qPrintable(name)) << name;
    }
}

void SamplesTest::readAloneAsTogether()
{
    QFETCH(QString, name);
    const QList<QJsonObject> read = extract({ u"--"_s, inbox.filePath(name) });
    QCOMPARE(read.size(), 1);
    for (const QString &key : { u"result"_s, u"kind"_s, u"byteCount"_s, u"width"_s, u"height"_s })
        QCOMPARE(read.first()[key], m_read[name][key]);
}

QTEST_GUILESS_MAIN(SamplesTest)
#include "tst_samples.moc"
