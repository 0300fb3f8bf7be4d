// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickLook.h"

#include "fakes/FakePreviewReader.h"
#include "workflow/TestBatch.h"
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Path = std::filesystem::path;

class QuickLookTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void readsWhereItRests();
    void dropsAnswersThatComeLate();
    void closesWithTheBatch();
    void maybeDestroyedWhileReading();
    void shows_data();
    void shows();
    void showsPixelsAsTheyAre();
    void namesBothNames();

private:
    std::optional<TestBatch> m_test;
    std::unique_ptr<FakePreviewReader> m_reader;
    std::unique_ptr<QuickLook> m_look;
};

void QuickLookTest::init()
{
    m_look.reset();
    m_test.emplace();
    m_test->add({ m_test->make("a.txt"), m_test->make("b.txt"), m_test->make("c.txt") });
    m_reader = std::make_unique<FakePreviewReader>();
    m_look = std::make_unique<QuickLook>(*m_test->batch, *m_reader);
}

void QuickLookTest::readsWhereItRests()
{
    m_look->open(0, 1);
    m_look->step(-1); // there is none
    m_look->step(1);
    m_look->step(1);
    m_look->step(1);
    QCOMPARE(m_look->row(), 2);
    QTRY_COMPARE_WITH_TIMEOUT(m_look->text(), u"c.txt"_s, 60'000);
    QCOMPARE(m_reader->asked, std::vector<Path> { "c.txt" });
    QVERIFY(!m_look->isReading());
}

void QuickLookTest::dropsAnswersThatComeLate()
{
    m_reader->isHeld = true;
    m_look->open(0, 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_reader->asked.size(), 1U, 60'000);
    m_look->step(1);
    QTRY_COMPARE_WITH_TIMEOUT(m_reader->asked.size(), 2U, 60'000);
    QStringList seen;
    connect(m_look.get(), &QuickLook::contentChanged, this, [&] { seen.append(m_look->text()); });
    m_reader->letGo();
    QTRY_COMPARE_WITH_TIMEOUT(seen, QStringList { u"b.txt"_s }, 60'000);
}

void QuickLookTest::closesWithTheBatch()
{
    m_reader->isHeld = true;
    m_look->open(0, 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_reader->asked.size(), 1U, 60'000);
    m_test->batch->clear();
    QVERIFY(!m_look->isOpen());
    m_reader->letGo();
    QCoreApplication::processEvents();
    QCOMPARE(m_look->text(), QString());
    m_look->open(0, 1);
    QVERIFY(!m_look->isOpen());
}

void QuickLookTest::maybeDestroyedWhileReading()
{
    m_reader->isHeld = true;
    m_look->open(0, 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_reader->asked.size(), 1U, 60'000);
    m_look.reset();
    m_reader->letGo();
    QCoreApplication::processEvents();
}

void QuickLookTest::shows_data()
{
    QTest::addColumn<Preview>("preview");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *slip, const Preview &preview, const QString &text, const QString &message) {
        QTest::newRow(slip) << preview << text << message;
    };
    row("lines made one", TextPreview { u"one\n two\r\n\tthree"_s }, u"one\n two\n    three"_s, {});
    row("escape sequence and direction", TextPreview { u"\x1b[1mx\u202ey"_s }, u"\\033[1mx\\u202ey"_s, {});
    row("silent failure", Unreadable { u"This file could not be read safely."_s }, {},
        u"This file could not be read safely."_s);
    row("empty sheet", NoTextFound {}, {}, u"No text found"_s);
    row("empty sheet for a strange type", NotSupportedYet {}, {}, u"Not supported yet"_s);
}

void QuickLookTest::shows()
{
    QFETCH(Preview, preview);
    m_reader->previews.insert_or_assign("a.txt", preview);
    m_look->open(0, 1);
    QTRY_VERIFY_WITH_TIMEOUT(!m_look->isReading(), 60'000);
    QTEST(m_look->text(), "text");
    QTEST(m_look->message(), "message");
    QVERIFY(m_look->picture().isNull());
}

void QuickLookTest::showsPixelsAsTheyAre()
{
    // Three pixels a row, so that rows do not end where a QImage's own would.
    const QByteArray rows = "\xff\0\0\0\xff\0\0\0\xff"_ba + QByteArray(9, '\xff');
    m_reader->previews.insert_or_assign("a.txt", PicturePreview { { 3, 2 }, rows });
    m_look->open(0, 1);
    QTRY_VERIFY_WITH_TIMEOUT(!m_look->isReading(), 60'000);
    const QImage picture = m_look->picture();
    QCOMPARE(picture.size(), QSize(3, 2));
    QCOMPARE(picture.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(picture.pixel(2, 0), qRgb(0, 0, 255));
    QCOMPARE(picture.pixel(0, 1), qRgb(255, 255, 255));
}

void QuickLookTest::namesBothNames()
{
    m_look->open(0, 1);
    QCOMPARE(m_look->oldName() + u'>' + m_look->newName(), u"a.txt>"_s);
    QStringList seen;
    connect(m_look.get(), &QuickLook::namesChanged, this,
        [&] { seen.append(m_look->oldName() + u'>' + m_look->newName()); });
    m_test->suggest();
    QCOMPARE(seen.value(seen.size() - 1), u"a.txt>new a.txt"_s);
    QCoro::waitFor(m_test->batch->renameAll());
    QCOMPARE(seen.value(seen.size() - 1), u"a.txt>new a.txt"_s);
}

QTEST_GUILESS_MAIN(QuickLookTest)
#include "tst_QuickLook.moc"
