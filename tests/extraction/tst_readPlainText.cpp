// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/readPlainText.h"

#include "extraction/describe.h"
#include <atomic>
#include <fcntl.h>
#include <QTemporaryFile>
#include <QTest>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ReadPlainTextTest : public QObject {
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void givesUp();
    void survivesChange();
};

static const QString noText = u"no text found"_s;

static QString read(const QString &path, int access = O_RDONLY)
{
    const FileDescriptor file(::open(path.toUtf8().constData(), access));
    return describe(readPlainText(file, std::chrono::milliseconds(20)));
}

// A file of a front and an end; between them nothing was ever written. Read through, 8 TiB would outlast the test.
void ReadPlainTextTest::reads_data()
{
    QTest::addColumn<QByteArray>("front");
    QTest::addColumn<qint64>("hole");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QString>("outcome");
    constexpr qint64 hole = 8LL << 40;
    const QByteArray mebibyte(1 << 20, 'x');
    const QByteArray letters(30, 'x');
    const QString padded = u"text: "_s + u"x"_s.repeated(30) + QString(8000 - 30, QChar());
    QTest::newRow("empty") << ""_ba << 0LL << ""_ba << noText;
    QTest::newRow("wrong in the very last byte") << mebibyte << 0LL << "\xFF"_ba << noText;
    QTest::newRow("cut short in the last character") << mebibyte << 0LL << "\xE6\xBC"_ba << noText;
    QTest::newRow("nothing behind the hole") << letters << hole << ""_ba << padded;
    QTest::newRow("text behind the hole") << letters << hole << "y"_ba << padded;
    QTest::newRow("hole in front") << ""_ba << hole << "y"_ba << u"text: "_s + QString(8000, QChar());
    QTest::newRow("wrong byte behind the hole") << letters << hole << "\xFF"_ba << noText;
    QTest::newRow("hole inside a character") << mebibyte.chopped(1) + '\xC2' << hole << "\x85"_ba << noText;
    // A chunk's size is some power of two: a character across each of them.
    for (int offset = 0; offset <= 4; ++offset) {
        QByteArray bytes = mebibyte;
        for (int border = 4096; border < bytes.size(); border *= 2)
            bytes.replace(border - offset, 4, "😀"_ba);
        QTest::addRow("%d bytes of a character in the chunk before", offset)
            << bytes << 0LL << ""_ba
            << u"text: "_s + u"x"_s.repeated(4096 - offset) + u"😀"_s + u"x"_s.repeated(3903 + offset);
    }
}

void ReadPlainTextTest::reads()
{
    QFETCH(QByteArray, front);
    QFETCH(qint64, hole);
    QFETCH(QByteArray, end);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(front) == front.size() && file.resize(front.size() + hole));
    QVERIFY(file.seek(front.size() + hole) && file.write(end) == end.size() && file.flush());
    QTEST(read(file.fileName()), "outcome");
}

void ReadPlainTextTest::givesUp()
{
    // 256 GiB, nearly all of them zeros, in a file that says it is empty.
    QCOMPARE(read(u"/proc/self/pagemap"_s), noText);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(QByteArray(30, 'x')) == 30 && file.flush());
    QCOMPARE(read(file.fileName(), O_WRONLY), noText);
}

void ReadPlainTextTest::survivesChange()
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(QByteArray(4 << 20, 'x')) == 4 << 20 && file.flush());
    std::atomic_bool isOver = false;
    std::thread changer([&isOver, descriptor = file.handle()] {
        for (off_t size = 0; !isOver; size = (size + 1234567) % (8 << 20))
            (void)!::ftruncate(descriptor, size);
    });
    QStringList outcomes;
    for (int round = 0; round < 200; ++round)
        outcomes.append(read(file.fileName()));
    isOver = true;
    changer.join();
    for (const QString &outcome : std::as_const(outcomes))
        QVERIFY(outcome.startsWith(u"text: ") || outcome == noText);
}

QTEST_GUILESS_MAIN(ReadPlainTextTest)
#include "tst_readPlainText.moc"
