// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/recognition/TesseractRecognizer.h"

#include "extraction/describe.h"
#include "extraction/pdf/readPDF.h"
#include "platform/linux/openRegularFile.h"
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

static const QString samples = QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/recognition/samples/");
static const QString languagePacks = u"/usr/share/tesseract-ocr/5/tessdata/"_s;

class TesseractRecognizerTest : public QObject {
    Q_OBJECT
private slots:
    void readsScans_data();
    void readsScans();
    void worksInAForkedProcess();
    void makesDoWithThePacksThereAre_data();
    void makesDoWithThePacksThereAre();
    void stopsInTime();
    void survives_data();
    void survives();

private:
    TesseractRecognizer m_recognizer;
};

static QString readScan(const QString &name, TesseractRecognizer &recognizer)
{
    const auto file = openRegularFile((samples + name + u".pdf"_s).toStdString());
    const auto outcome = file ? readPDF(*file, &recognizer, [] {}) : NeedsRecognition {};
    const auto *const extraction = std::get_if<Extraction>(&outcome);
    return extraction ? describe(*extraction).remove(0, u"text: "_s.size()) : QString();
}

static QStringList wordsOf(const QString &name)
{
    QFile source(samples + name + u".txt"_s);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()).simplified().split(u' ')
                                            : QStringList();
}

/// How many of the expected words come, to the letter and in this order.
static qsizetype countRight(const QStringList &expected, const QStringList &words)
{
    QList<qsizetype> longest(words.size() + 1);
    for (const QString &word : expected) {
        qsizetype diagonal = 0;
        for (qsizetype at = 0; at < words.size(); ++at) {
            const qsizetype above = longest[at + 1];
            longest[at + 1] = words[at] == word ? diagonal + 1 : std::max(above, longest[at]);
            diagonal = above;
        }
    }
    return longest.last();
}

void TesseractRecognizerTest::readsScans_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("columns one after the other") << u"columns"_s;
    QTest::newRow("noise, and four degrees of skew") << u"skewed"_s;
    QTest::newRow("six points") << u"fine-print"_s;
}

void TesseractRecognizerTest::readsScans()
{
    QFETCH(QString, name);
    const QStringList expected = wordsOf(name);
    const QString text = readScan(name, m_recognizer);
    QVERIFY(expected.size() > 40);
    QVERIFY2(100 * countRight(expected, text.split(u' ')) >= 96 * expected.size(), qPrintable(text));
    QCOMPARE(readScan(name, m_recognizer), text); // nothing is learnt from one page to the next
}

void TesseractRecognizerTest::worksInAForkedProcess()
{
    const QString text = readScan(u"columns"_s, m_recognizer);
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(readScan(u"columns"_s, m_recognizer) == text ? 0 : 1);
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

void TesseractRecognizerTest::makesDoWithThePacksThereAre_data()
{
    QTest::addColumn<QStringList>("packs");
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("the first is missing") << QStringList { u"eng"_s, u"spa"_s } << QStringList { u"nld"_s };
    QTest::newRow("only the last") << QStringList { u"eng"_s } << QStringList { u"nld"_s, u"spa"_s };
    QTest::newRow("none") << QStringList() << QStringList { u"nld"_s, u"spa"_s, u"eng"_s };
}

void TesseractRecognizerTest::makesDoWithThePacksThereAre()
{
    QFETCH(QStringList, packs);
    QFETCH(QStringList, missing);
    const QTemporaryDir folder;
    for (const QString &pack : packs) {
        const QString file = pack + u".traineddata"_s;
        QVERIFY2(QFile::link(languagePacks + file, folder.filePath(file)) && QFile::exists(folder.filePath(file)),
            qPrintable(file));
    }
    TesseractRecognizer recognizer(folder.path().toStdString());
    QCOMPARE(recognizer.missingLanguages(), missing);
    const QString text = readScan(u"columns"_s, recognizer);
    QCOMPARE(text.startsWith(u"The ferry to the island"_s), !packs.isEmpty());
    QCOMPARE(m_recognizer.missingLanguages(), QStringList());
}

void TesseractRecognizerTest::stopsInTime()
{
    TesseractRecognizer hurried({}, std::chrono::milliseconds(1)); // laying the page out alone takes longer
    const QString text = readScan(u"columns"_s, hurried);
    QVERIFY2(text.size() < readScan(u"columns"_s, m_recognizer).size(), qPrintable(text));
}

void TesseractRecognizerTest::survives_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("padding"); // bytes behind each row
    QTest::addColumn<QByteArray>("pattern"); // repeated over the picture
    QTest::newRow("one pixel") << QSize(1, 1) << 3 << QByteArray(1, '\0');
    QTest::newRow("a line") << QSize(3001, 1) << 3 << "\0\xFF"_ba;
    QTest::newRow("a column") << QSize(1, 3001) << 3 << "\0\xFF"_ba;
    QTest::newRow("white") << QSize(601, 800) << 3 << "\xFF"_ba;
    QTest::newRow("black") << QSize(601, 800) << 3 << QByteArray(1, '\0');
    QTest::newRow("stripes") << QSize(601, 800) << 0 << QByteArray(4000, '\0') + QByteArray(4000, '\xFF');
    QTest::newRow("dust") << QSize(601, 800) << 3 << QByteArray(96, '\xFF') + QByteArray(1, '\0');
}

void TesseractRecognizerTest::survives()
{
    QFETCH(QSize, size);
    QFETCH(int, padding);
    QFETCH(QByteArray, pattern);
    const int bytesPerRow = size.width() + padding;
    const qsizetype total = qsizetype { bytesPerRow } * size.height();
    const QByteArray pixels
        = pattern.repeated(total / pattern.size() + 1).first(total); // to the byte: for the sanitizer
    QCOMPARE(m_recognizer.recognize(
                 { .pixels = std::as_bytes(std::span(pixels.constData(), static_cast<size_t>(pixels.size()))),
                     .width = size.width(),
                     .height = size.height(),
                     .bytesPerRow = bytesPerRow,
                     .resolution = 28 }),
        QString());
}

QTEST_GUILESS_MAIN(TesseractRecognizerTest)
#include "tst_TesseractRecognizer.moc"
