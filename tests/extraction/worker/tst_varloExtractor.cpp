// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/IsolatedContentReader.h"
#include "extraction/worker/extractContent.h"

#include <QCoroTask>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

// The real starter with the real readers, on the sample files.
class VarloExtractorTest : public QObject {
    Q_OBJECT
private slots:
    void agreesWithReadingInProcess_data();
    void agreesWithReadingInProcess();
    void previews_data();
    void previews();
    void readsPictureOfAnotherKind();

private:
    struct DiskFlags final : FileFlags {
        [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &) const override { return false; }
    };

    const DiskFlags m_flags;
    FileReaders m_readers;
    IsolatedContentReader m_reader { m_flags, { {}, {}, {} } };
};

static const QDir inbox(QStringLiteral(VARLO_SOURCE_DIR "/samples/inbox"));

static std::filesystem::path sample(const QString &name) { return inbox.filePath(name).toStdString(); }

void VarloExtractorTest::agreesWithReadingInProcess_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : inbox.entryList(QDir::Files))
        QTest::newRow(qPrintable(name)) << name;
}

void VarloExtractorTest::agreesWithReadingInProcess()
{
    QFETCH(QString, name);
    QVERIFY(QCoro::waitFor(m_reader.read(sample(name))) == extractContent(sample(name), m_flags, m_readers));
}

void VarloExtractorTest::previews_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size"); // none: a text
    QTest::newRow("page") << u"artikel bijen.pdf"_s << QSize(212, 300);
    QTest::newRow("picture") << u"vakantie (2).jpeg"_s << QSize(300, 225);
    QTest::newRow("picture by the further decoder") << u"kaart.tiff"_s << QSize(300, 225);
    QTest::newRow("document") << u"Untitled 3.rtf"_s << QSize();
    QTest::newRow("text") << u"notes.md"_s << QSize();
}

void VarloExtractorTest::previews()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const Preview preview = QCoro::waitFor(m_reader.preview(sample(name), 300));
    const auto *const picture = std::get_if<PicturePreview>(&preview);
    QCOMPARE(picture ? picture->size : QSize(), size);
    QVERIFY(picture || std::get<TextPreview>(preview).text.size() > 20);
}

void VarloExtractorTest::readsPictureOfAnotherKind()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"heic in fact.jpg"_s);
    QVERIFY(QFile::copy(inbox.filePath(u"IMG_4410.heic"_s), path));
    IsolatedContentReader reader(m_flags, { {}, {}, {} }); // whose starter has not loaded the decoder for others
    const Extraction extraction = QCoro::waitFor(reader.read(path.toStdString()));
    QVERIFY(std::holds_alternative<FileContent>(extraction));
}

QTEST_GUILESS_MAIN(VarloExtractorTest)
#include "tst_varloExtractor.moc"
