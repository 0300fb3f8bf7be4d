// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/renderFirstPage.h"

#include "extraction/pdf/TestPDF.h"
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class RenderFirstPageTest : public QObject {
    Q_OBJECT
private slots:
    void fits_data();
    void fits();
    void refuses_data();
    void refuses();
};

void RenderFirstPageTest::fits_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSize>("size");
    QTest::newRow("portrait") << "/MediaBox [0 0 500 1000]"_ba << QSize(400, 800);
    QTest::newRow("an odd side never gets a pixel too many") << "/MediaBox [0 0 595.28 841.89]"_ba << QSize(566, 800);
    QTest::newRow("rotated") << "/MediaBox [0 0 500 1000] /Rotate 90"_ba << QSize(800, 400);
    QTest::newRow("what a viewer shows") << "/MediaBox [0 0 500 1000] /CropBox [0 500 500 1000]"_ba << QSize(800, 800);
    QTest::newRow("poster") << "/MediaBox [0 0 5000 10000]"_ba << QSize(400, 800);
    QTest::newRow("stamp: at most 300 pixels an inch") << "/MediaBox [0 0 72 36]"_ba << QSize(300, 150);
}

void RenderFirstPageTest::fits()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QSize, size);
    // Two pages, so that the wrong one would show: red, then white.
    const QByteArray pdf = pagesPDF({ { "1 0 0 rg 0 0 20000 20000 re f", attributes }, { {}, attributes } });
    const auto page = renderFirstPage(fileOf(pdf), 800);
    QVERIFY(page);
    QCOMPARE(page->size, size);
    QVERIFY(page->pixels == "\xff\0\0"_ba.repeated(size.width() * size.height()));
}

void RenderFirstPageTest::refuses_data()
{
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<int>("longestSide");
    QTest::newRow("no PDF") << "hello"_ba << 100;
    QTest::newRow("empty") << ""_ba << 100;
    QTest::newRow("no page") << pagesPDF({}) << 100;
    QTest::newRow("no room") << textPDF({ u"x"_s }) << 0;
    QTest::newRow("thinner than a pixel") << pagesPDF({ { {}, "/MediaBox [0 0 14400 1]" } }) << 800;
}

void RenderFirstPageTest::refuses()
{
    QFETCH(QByteArray, pdf);
    QFETCH(int, longestSide);
    QVERIFY(!renderFirstPage(fileOf(pdf), longestSide));
}

QTEST_GUILESS_MAIN(RenderFirstPageTest)
#include "tst_renderFirstPage.moc"
